#include "folderlister.h"

#include "windows/folderreader.h"
#include "windows/openentry.h"

#include <optional>
#include <utility>

namespace platform {

namespace {

// Nothing for an entry that is not listed. If it cannot be examined, @p error becomes the system's
// error.
std::optional<ListedEntry> inspectEntry(const QString &folder, const WIN32_FIND_DATAW &entry,
                                        DWORD &error)
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
    case EntryNature::FileLink: {
        const std::optional<bool> isFile = leadsToFile(extendedPath(folder + u'/' + listed.name));
        if (!isFile)
            error = ::GetLastError();
        if (!isFile.value_or(false))
            return {};
        listed.kind = ListedKind::FileLink;
        listed.size = sizeOf(entry);
        return listed;
    }
    case EntryNature::Special:
        break;
    }
    return {};
}

} // namespace

/// A listing on Windows needs no state.
class FolderLister::Private
{
};

FolderLister::FolderLister() = default;
FolderLister::~FolderLister() = default;

FolderListing FolderLister::list(const QString &path, const RunWatch &watch) const
{
    FolderListing listing;
    const QString folder = path.endsWith(u'/') ? path.chopped(1) : path;
    // A drive without its slash means the current folder of that drive.
    const QString absolute = folder.endsWith(u':') ? folder + u'/' : folder;
    const QString extended = extendedPath(absolute);
    // A path that is not absolute is refused: a bare pattern would list the current drive.
    if (extended.isEmpty()) {
        listing.isMissing = true;
        return listing;
    }
    // The id is taken before the listing. A folder that comes to the path later then has another
    // id.
    listing.id = idOfFolder(absolute);
    watch.noteActivity();
    FolderReader reader(watch.stopRequested);
    reader.begin(extended);
    DWORD entryError = ERROR_SUCCESS;
    for (int count = 1; const WIN32_FIND_DATAW *entry = reader.next(); ++count) {
        watch.noteEntry(count);
        if (std::optional<ListedEntry> found = inspectEntry(folder, *entry, entryError))
            listing.entries.push_back(std::move(*found));
    }
    if (entryError != ERROR_SUCCESS)
        listing.error = reasonOf(entryError);
    if (reader.error() != ERROR_SUCCESS) {
        listing.isMissing = isMissing(reader.error());
        listing.error = reasonOf(reader.error());
    }
    return listing;
}

} // namespace platform
