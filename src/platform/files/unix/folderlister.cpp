#include "folderlister.h"

#include "unix/dosattributes.h"
#include "unix/folderreader.h"
#include "unix/openfolder.h"

#include <QFile>

#include <cerrno>
#include <memory>
#include <optional>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace platform {

namespace {

// The status of the entry itself, or of a link's target if @p flags say so.
std::optional<struct statx> readStatus(int folder, const char *name, int flags)
{
    struct statx status = {};
    if (::statx(folder, name, flags | AT_NO_AUTOMOUNT, STATX_TYPE | STATX_SIZE, &status) != 0)
        return {};
    return status;
}

// Nothing for an entry that is not listed. If its status cannot be read, @p error becomes the
// errno.
std::optional<ListedEntry> inspectEntry(int folder, const dirent64 &entry, bool canBeHidden,
                                        int &error)
{
    const QUtf8StringView name(entry.d_name);
    if (!name.isValidUtf8())
        return {};
    const auto fail = [&error]() -> std::optional<ListedEntry> {
        if (!meansMissing(errno))
            error = errno;
        return {};
    };
    const std::optional<struct statx> own = readStatus(folder, entry.d_name, AT_SYMLINK_NOFOLLOW);
    if (!own)
        return fail();
    if ((own->stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0)
        return {};
    const bool isLink = S_ISLNK(own->stx_mode);
    const std::optional<struct statx> target = isLink ? readStatus(folder, entry.d_name, 0) : own;
    if (!target)
        return fail();
    const DosAttributes::Answer answer =
        canBeHidden ? DosAttributes::isHidden(folder, entry.d_name) : DosAttributes::Answer();
    if (answer.error != 0) {
        errno = answer.error;
        return fail();
    }
    const bool isHidden = entry.d_name[0] == '.' || answer.isHidden;
    if (S_ISDIR(target->stx_mode))
        return ListedEntry{name.toString(), isLink ? ListedKind::FolderLink : ListedKind::Folder,
                           isHidden, 0};
    if (S_ISREG(target->stx_mode))
        return ListedEntry{name.toString(), isLink ? ListedKind::FileLink : ListedKind::File,
                           isHidden, static_cast<qint64>(own->stx_size)};
    return {};
}

} // namespace

/// What stays the same for all folders of one lister. Never changed, so any thread may read it.
class FolderLister::Private
{
public:
    DosAttributes attributes;
};

FolderLister::FolderLister()
    : d(std::make_unique<const Private>())
{
}

FolderLister::~FolderLister() = default;

FolderListing FolderLister::list(const QString &path, const RunWatch &watch) const
{
    FolderListing listing;
    const auto fail = [&listing](int error) {
        listing.isMissing = meansMissing(error);
        listing.error = reasonOf(error);
    };
    const UniqueFd folder = openFolder(QFile::encodeName(path));
    FileStatus status{};
    if (!folder.isValid() || ::fstat(folder.get(), &status) != 0) {
        fail(errno);
        return listing;
    }
    listing.device = status.st_dev;
    listing.id = idOf(status);
    const bool canBeHidden = d->attributes.canApplyIn(path);
    watch.noteActivity();
    FolderReader reader(watch.stopRequested);
    reader.begin(folder.get());
    int entryError = 0;
    for (int count = 1; const dirent64 *entry = reader.next(); ++count) {
        watch.noteEntry(count);
        if (std::optional<ListedEntry> found =
                inspectEntry(folder.get(), *entry, canBeHidden, entryError))
            listing.entries.push_back(std::move(*found));
    }
    if (entryError != 0)
        listing.error = reasonOf(entryError);
    if (reader.error() != 0)
        fail(reader.error());
    return listing;
}

} // namespace platform
