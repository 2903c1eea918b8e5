#include "listedfolders.h"

#include <limits>

namespace platform {

namespace {

constexpr quint64 largestNumber = std::numeric_limits<quint64>::max();
constexpr EntryId ambiguousFolder{largestNumber, largestNumber};

// Only the root of a file system ends in a slash, and some callers leave that slash out.
QString keyOf(const QString &path)
{
    return path.endsWith(u'/') ? path.chopped(1) : path;
}

} // namespace

void ListedFolders::add(const QString &path, const EntryId &id)
{
    if (!id.isKnown())
        return;
    const std::lock_guard lock(m_mutex);
    EntryId &known = m_ids[keyOf(path)];
    known = known.isKnown() && known != id ? ambiguousFolder : id;
}

EntryId ListedFolders::idOf(const QString &path) const
{
    const std::lock_guard lock(m_mutex);
    return m_ids.value(keyOf(path));
}

void ListedFolders::clear()
{
    const std::lock_guard lock(m_mutex);
    m_ids.clear();
}

} // namespace platform
