#pragma once

#include "entry.h"

#include <QSet>

#include <mutex>

namespace platform {

/// The folders that have been read. The walk owns it, and every walker's thread uses it.
class VisitedFolders final
{
    Q_DISABLE_COPY_MOVE(VisitedFolders)
public:
    VisitedFolders() = default;

    /// Returns false if @p id was inserted before.
    [[nodiscard]] bool insert(const EntryId &id)
    {
        const std::lock_guard lock(m_mutex);
        const qsizetype before = m_ids.size();
        m_ids.insert(id);
        return m_ids.size() > before;
    }

    [[nodiscard]] bool contains(const EntryId &id)
    {
        const std::lock_guard lock(m_mutex);
        return m_ids.contains(id);
    }

private:
    std::mutex m_mutex;
    QSet<EntryId> m_ids;
};

} // namespace platform
