#include "folderlister.h"

#include "windows/folderreader.h"
#include "windows/openentry.h"

#include <optional>
#include <utility>

namespace platform {

namespace {

std::optional<ListedEntry> inspectEntry(const QString &folder, const WIN32_FIND_DATAW &entry)
{
    ListedEntry listed;
    listed.name = QString::fromWCharArray(entry.cFileName);
    listed.isHidden = isHidden(entry.dwFileAttributes);
    switch (natureOf(entry)) {
    case EntryNature::Folder:
        listed.kind = ListedKind::Folder;
        return listed;
    case EntryNature::FolderLink:
        listed.kind = ListedKind::FolderLink;
        return listed;
    case EntryNature::File:
        listed.kind = ListedKind::File;
        listed.size = sizeOf(entry);
        return listed;
    case EntryNature::FileLink:
        if (!leadsToFile(extendedPath(folder + u'/' + listed.name)))
            return {};
        listed.kind = ListedKind::FileLink;
        listed.size = sizeOf(entry);
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
    const QString absolute = folder.endsWith(u':') ? folder + u'/' : folder;
    const QString extended = extendedPath(absolute);
    // What is no absolute path must not become one: a bare pattern lists the current drive.
    if (extended.isEmpty()) {
        listing.isMissing = true;
        return listing;
    }
    // Before anything is listed: what comes to the path later is then another folder.
    listing.id = idOfFolder(absolute);
    FolderReader reader(stopRequested);
    reader.begin(extended);
    while (const WIN32_FIND_DATAW *entry = reader.next()) {
        if (std::optional<ListedEntry> found = inspectEntry(folder, *entry))
            listing.entries.push_back(std::move(*found));
    }
    if (reader.error() != ERROR_SUCCESS) {
        listing.isMissing = isMissing(reader.error());
        listing.error = reasonOf(reader.error());
    }
    return listing;
}

} // namespace platform
