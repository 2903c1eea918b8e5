#include "folderlister.h"

#include "windows/foldersearch.h"
#include "windows/openentry.h"

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

std::optional<ListedEntry> inspectEntry(const QString &folder, const WIN32_FIND_DATAW &entry)
{
    constexpr DWORD hidden = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    ListedEntry listed;
    listed.name = QString::fromWCharArray(entry.cFileName);
    listed.isHidden = (entry.dwFileAttributes & hidden) != 0;
    switch (natureOf(entry.dwFileAttributes, entry.dwReserved0)) {
    case EntryNature::Folder:
        listed.kind = ListedKind::Folder;
        if (listed.name == "."_L1 || listed.name == ".."_L1)
            return {};
        return listed;
    case EntryNature::FolderLink:
        listed.kind = ListedKind::FolderLink;
        return listed;
    case EntryNature::File:
        listed.kind = ListedKind::File;
        listed.size = sizeOf(entry.nFileSizeHigh, entry.nFileSizeLow);
        return listed;
    case EntryNature::FileLink:
        if (!leadsToFile(extendedPath(folder + u'/' + listed.name)))
            return {};
        listed.kind = ListedKind::FileLink;
        listed.size = sizeOf(entry.nFileSizeHigh, entry.nFileSizeLow);
        return listed;
    case EntryNature::Special:
        break;
    }
    return {};
}

} // namespace

class FolderLister::Private
{
};

FolderLister::FolderLister() = default;
FolderLister::~FolderLister() = default;

FolderListing FolderLister::list(const QString &path, const std::atomic_bool *stopRequested) const
{
    FolderListing listing;
    const QString folder = path.endsWith(u'/') ? path.chopped(1) : path;
    // Without its slash a drive would be whatever folder is current on it.
    const QString asRoot = folder.endsWith(u':') ? folder + u'/' : folder;
    QString pattern = extendedPath(asRoot);
    // What is no absolute path must not become one: a bare pattern lists the current drive.
    if (pattern.isEmpty()) {
        listing.isMissing = true;
        return listing;
    }
    // Before anything is listed: what comes to the path later is then another folder.
    listing.id = idOfFolder(asRoot);
    pattern += pattern.endsWith(u'\\') ? "*"_L1 : "\\*"_L1;
    FolderSearch search(pattern);
    for (; search.hasEntry(); search.next()) {
        if (stopRequested && stopRequested->load(std::memory_order_relaxed))
            return listing;
        if (std::optional<ListedEntry> found = inspectEntry(folder, search.entry()))
            listing.entries.push_back(std::move(*found));
    }
    const DWORD error = ::GetLastError();
    if (error != ERROR_NO_MORE_FILES) {
        listing.isMissing = isMissing(error);
        listing.error = reasonOf(error);
    }
    return listing;
}

} // namespace platform
