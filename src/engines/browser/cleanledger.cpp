#include "cleanledger.h"

namespace {

// The folder of @p path; empty at the top.
QString parentOf(const QString &path)
{
    return path.left(qMax<qsizetype>(path.lastIndexOf(u'/'), 0));
}

} // namespace

CleanLedger::CleanLedger(const ScanResult &selection)
{
    for (const CleanCategory &category : selection.categories) {
        for (const CleanItem &item : category.items) {
            if (item.isDirectory)
                m_countedBelow.insert(item.path, 0);
        }
    }
}

std::optional<qint64> CleanLedger::record(const CleanItem &item,
                                          const platform::FileRemover::Outcome &outcome)
{
    using Status = platform::FileRemover::Status;
    if (outcome.status == Status::Removed) {
        const bool wasRemovedBefore = m_removed.contains(item.path);
        return addCleaned(
            item.path,
            wasRemovedBefore ? 0 : qMax<qint64>(0, item.size - m_countedBelow.value(item.path)));
    }
    if (outcome.status == Status::NotFound) {
        if (m_removed.contains(item.path) || isBelow(m_removed, item.path))
            return addCleaned(item.path, 0);
        if (isBelow(m_partlyRemoved, item.path))
            return addCleaned(item.path, item.isDirectory ? 0 : item.size);
    } else if (outcome.status == Status::Failed && outcome.wasFolder) {
        m_partlyRemoved.insert(item.path);
    }
    return std::nullopt;
}

qint64 CleanLedger::addCleaned(const QString &path, qint64 size)
{
    m_removed.insert(path);
    if (size == 0 || m_countedBelow.isEmpty())
        return size;
    for (QString folder = parentOf(path); !folder.isEmpty(); folder = parentOf(folder)) {
        if (const auto counted = m_countedBelow.find(folder); counted != m_countedBelow.end())
            *counted += size;
    }
    return size;
}

bool CleanLedger::isBelow(const QSet<QString> &folders, const QString &path) const
{
    if (folders.isEmpty())
        return false;
    for (QString folder = parentOf(path); !folder.isEmpty(); folder = parentOf(folder)) {
        if (folders.contains(folder))
            return true;
    }
    return false;
}
