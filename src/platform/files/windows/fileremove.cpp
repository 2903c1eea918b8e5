#include "fileremove.h"

#include "expectedfolders_p.h"
#include "windows/folderreader.h"
#include "windows/openentry.h"

#include <optional>
#include <utility>
#include <vector>

#include <windows.h>

namespace platform {

namespace {

using Status = FileRemover::Status;
using Outcome = FileRemover::Outcome;

// The value of FileDispositionInfoEx. The compiler's headers give that name another value.
constexpr auto immediateDisposition = static_cast<FILE_INFO_BY_HANDLE_CLASS>(21);

Outcome failure(DWORD error, bool wasFolder = false)
{
    return {Status::Failed, wasFolder, reasonOf(error)};
}

/// An entry that was opened for removal without being followed. Its final path was compared with
/// the requested one.
struct OpenedEntry {
    UniqueHandle handle;
    DWORD attributes = 0;
    EntryNature nature = EntryNature::File;

    [[nodiscard]] bool isFolder() const { return nature == EntryNature::Folder; }
};

/// Removes single entries by their handle. The entry that was checked is the one that is removed,
/// even if a folder above is exchanged meanwhile. A FileRemover owns one and uses it on its thread.
class EntryRemover
{
public:
    /// On failure the result has no handle and error() tells why.
    [[nodiscard]] OpenedEntry open(const QString &extended, DWORD moreAccess = 0)
    {
        OpenedEntry entry;
        if (const QString root = extended.left(rootLength(extended)); root != m_root) {
            m_root = root;
            m_hasImmediateDeletion = true; // until this volume refuses it
        }
        UniqueHandle handle =
            openEntry(extended, DELETE | FILE_READ_ATTRIBUTES | moreAccess, Links::Open);
        if (!handle.isValid()) {
            m_error = ::GetLastError();
            return entry;
        }
        switch (m_check.placeOf(handle, extended)) {
        case PlaceCheck::Place::AsAsked:
            break;
        case PlaceCheck::Place::OtherCase:
            // Some folders have two entries whose names differ only in case. This is not the
            // requested one.
            m_error = ERROR_FILE_NOT_FOUND;
            return entry;
        case PlaceCheck::Place::Elsewhere:
            m_error = linkInPathError;
            return entry;
        }
        const std::optional<EntryAttributes> found = attributesOf(handle);
        if (!found) {
            m_error = ::GetLastError();
            return entry;
        }
        entry.attributes = found->attributes;
        entry.nature = found->nature;
        entry.handle = std::move(handle);
        return entry;
    }

    /// Removes a file, a link or an empty folder. Closes the handle in any case.
    [[nodiscard]] bool remove(OpenedEntry entry)
    {
        const bool isRemoved = markForDeletion(entry.handle);
        if (!isRemoved)
            m_error = ::GetLastError();
        return isRemoved;
    }

    /// The same. A read-only entry gets a second attempt without the attribute.
    [[nodiscard]] bool removeEvenIfReadOnly(const QString &extended, OpenedEntry entry)
    {
        const DWORD attributes = entry.attributes;
        if (remove(std::move(entry)))
            return true;
        const DWORD error = m_error;
        if (error != ERROR_ACCESS_DENIED || (attributes & FILE_ATTRIBUTE_READONLY) == 0)
            return false;
        OpenedEntry reopened = open(extended, FILE_WRITE_ATTRIBUTES);
        const bool isRemoved =
            reopened.handle.isValid() && removeWithoutReadOnly(std::move(reopened));
        if (!isRemoved)
            m_error = error;
        return isRemoved;
    }

    [[nodiscard]] DWORD error() const { return m_error; }

private:
    bool markForDeletion(const UniqueHandle &handle)
    {
        if (m_hasImmediateDeletion) {
            FILE_DISPOSITION_INFO_EX immediate{};
            immediate.Flags = FILE_DISPOSITION_FLAG_DELETE | FILE_DISPOSITION_FLAG_POSIX_SEMANTICS;
            if (::SetFileInformationByHandle(handle.get(), immediateDisposition, &immediate,
                                             sizeof immediate))
                return true;
            const DWORD error = ::GetLastError();
            if (error != ERROR_INVALID_PARAMETER && error != ERROR_INVALID_FUNCTION
                && error != ERROR_NOT_SUPPORTED)
                return false;
            m_hasImmediateDeletion = false;
        }
        FILE_DISPOSITION_INFO deleteOnClose{};
        deleteOnClose.DeleteFile = TRUE;
        return ::SetFileInformationByHandle(handle.get(), FileDispositionInfo, &deleteOnClose,
                                            sizeof deleteOnClose)
            != 0;
    }

    // The attribute belongs to the file and not to the name. A file with other names keeps it.
    bool removeWithoutReadOnly(OpenedEntry entry)
    {
        FILE_STANDARD_INFO standard{};
        if (!::GetFileInformationByHandleEx(entry.handle.get(), FileStandardInfo, &standard,
                                            sizeof standard)
            || standard.NumberOfLinks > 1
            || !setAttributes(entry.handle, entry.attributes & ~DWORD(FILE_ATTRIBUTE_READONLY)))
            return false;
        if (markForDeletion(entry.handle))
            return true;
        setAttributes(entry.handle, entry.attributes);
        return false;
    }

    static bool setAttributes(const UniqueHandle &handle, DWORD attributes)
    {
        FILE_BASIC_INFO basic{}; // a time of 0 leaves the file's time unchanged
        basic.FileAttributes = attributes == 0 ? FILE_ATTRIBUTE_NORMAL : attributes;
        return ::SetFileInformationByHandle(handle.get(), FileBasicInfo, &basic, sizeof basic) != 0;
    }

    PlaceCheck m_check;
    QString m_root; ///< the root of the volume of the last entry
    bool m_hasImmediateDeletion = true;
    DWORD m_error = ERROR_SUCCESS;
};

/// Empties and removes one folder, level by level without recursion. Lives on the stack of
/// FileRemover::remove(). Each entry is opened and checked before it is removed or entered.
class FolderRemoval
{
public:
    FolderRemoval(ExpectedFolders &folders, EntryRemover &remover, const QString &top,
                  const std::atomic_bool *stopRequested)
        : m_folders(folders)
        , m_remover(remover)
        , m_topPath(top)
        , m_stopRequested(stopRequested)
    {
    }

    Outcome run()
    {
        enter(m_topPath);
        while (!m_levels.empty() && !isStopped() && !m_wasMoved) {
            Level &level = m_levels.back();
            if (level.subfolders.empty()) {
                const QString path = std::move(level.path);
                const EntryId id = level.id;
                m_levels.pop_back();
                if (removeEntry(path))
                    m_folders.noteRemoved(id);
                continue;
            }
            const QString subfolder = level.path + u'\\' + level.subfolders.back();
            level.subfolders.pop_back();
            enter(subfolder);
        }
        if (isStopped())
            return failure(ERROR_CANCELLED, true);
        if (m_wasMoved || m_hasReplacedFolder)
            return {Status::Replaced, true, {}};
        return m_error == ERROR_SUCCESS ? Outcome{Status::Removed, true, {}}
                                        : failure(m_error, true);
    }

private:
    /// A folder on the way down to the current one.
    struct Level {
        QString path; ///< in the extended form
        EntryId id;
        std::vector<QString> subfolders; ///< still to be removed
    };

    bool isStopped() const { return m_stopRequested && m_stopRequested->load(); }

    void keepFirstError(DWORD error)
    {
        if (m_error == ERROR_SUCCESS)
            m_error = error;
    }

    // Removes everything in the folder except its subfolders. Then pushes the folder with its
    // subfolders on the stack.
    void enter(const QString &path)
    {
        OpenedEntry entry = m_remover.open(path);
        if (!entry.handle.isValid()) {
            keepErrorUnlessMissing(m_remover.error());
            return;
        }
        if (!entry.isFolder()) {
            // The subfolder was replaced by something else after its parent was read. That is
            // removed as what it is.
            if (!m_remover.removeEvenIfReadOnly(path, std::move(entry)))
                keepFirstError(m_remover.error());
            return;
        }
        const EntryId id = idOf(entry.handle);
        const QString plain = plainPath(path);
        if (path == m_topPath ? !m_folders.accept(plain, id)
                              : m_folders.differsFromListed(plain, id)) {
            m_hasReplacedFolder = true;
            return;
        }
        entry.handle.reset();
        Level level{path, id, {}};
        removeEntries(level);
        m_levels.push_back(std::move(level));
    }

    void removeEntries(Level &level)
    {
        FolderReader reader(m_stopRequested);
        if (!reader.begin(level.path)) {
            keepErrorUnlessMissing(reader.error());
            return;
        }
        while (const WIN32_FIND_DATAW *entry = m_wasMoved ? nullptr : reader.next()) {
            const QString name = QString::fromWCharArray(entry->cFileName);
            if (natureOf(*entry) == EntryNature::Folder)
                level.subfolders.push_back(name);
            else if (isInPlace(level))
                removeEntry(level.path + u'\\' + name);
        }
        if (reader.error() != ERROR_SUCCESS)
            keepFirstError(reader.error());
    }

    // To be called before each removal in the level, because entries are opened by their path. Once
    // another folder is at the path of the level nothing else is removed.
    bool isInPlace(const Level &level)
    {
        m_wasMoved = m_wasMoved || idOfFolder(plainPath(level.path)) != level.id;
        return !m_wasMoved;
    }

    // Removes a file, a link or an emptied folder. Returns whether it was removed.
    bool removeEntry(const QString &path)
    {
        OpenedEntry entry = m_remover.open(path);
        if (!entry.handle.isValid()) {
            keepErrorUnlessMissing(m_remover.error());
            return false;
        }
        const bool isRemoved = m_remover.removeEvenIfReadOnly(path, std::move(entry));
        if (!isRemoved)
            keepFirstError(m_remover.error());
        return isRemoved;
    }

    void keepErrorUnlessMissing(DWORD error)
    {
        if (!isMissing(error))
            keepFirstError(error);
    }

    ExpectedFolders &m_folders;
    EntryRemover &m_remover;
    const QString m_topPath;
    const std::atomic_bool *const m_stopRequested;
    std::vector<Level> m_levels;
    bool m_wasMoved = false;
    bool m_hasReplacedFolder = false; ///< the folder or one inside was replaced; the new one stays
    DWORD m_error = ERROR_SUCCESS;
};

bool isFolderAt(const QString &extended)
{
    const DWORD attributes =
        ::GetFileAttributesW(reinterpret_cast<const wchar_t *>(extended.utf16()));
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0
        && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0;
}

} // namespace

/// What a FileRemover keeps between two entries.
class FileRemover::Private
{
public:
    enum class Folders { Leave, Remove };

    void setListed(const ListedFolders *listed) { m_expected.setListed(listed); }

    Outcome remove(const QString &path, Folders folders, const std::atomic_bool *stopRequested,
                   const std::optional<FileRemover::ListedFile> &listed)
    {
        const QString extended = extendedPath(path);
        if (extended.isEmpty() || extended.size() == rootLength(extended))
            return failure(ERROR_INVALID_NAME);
        if (const std::optional<Outcome> outcome = checkFolderOf(extended))
            return *outcome;

        OpenedEntry entry = m_entries.open(extended);
        if (!entry.handle.isValid()) {
            const DWORD error = m_entries.error();
            return isMissing(error) ? Outcome{Status::NotFound, false, {}}
                                    : failure(error, isFolderAt(extended));
        }
        if (entry.isFolder()) {
            if (folders == Folders::Leave)
                return failure(ERROR_ACCESS_DENIED, true);
            entry.handle.reset();
            if (m_expected.isRemoved(plainPath(extended)))
                return {Status::NotFound, false, {}};
            return FolderRemoval(m_expected, m_entries, extended, stopRequested).run();
        }
        if (listed && !isListedFile(entry, *listed))
            return {Status::Replaced, false, {}};
        if (!m_entries.remove(std::move(entry)))
            return failure(m_entries.error());
        return {Status::Removed, false, {}};
    }

private:
    static bool isListedFile(const OpenedEntry &entry, const FileRemover::ListedFile &listed)
    {
        const auto nature = listed.isLink ? EntryNature::FileLink : EntryNature::File;
        return entry.nature == nature
            && (listed.number == 0 || listed.number == idOf(entry.handle).number);
    }

    // Checks the folder of the entry. If it is not the expected one, returns the outcome for the
    // entry. To be called for each entry, because entries are opened by their path.
    std::optional<Outcome> checkFolderOf(const QString &extended)
    {
        const QString folder = folderOf(plainPath(extended));
        if (m_expected.isRemoved(folder))
            return Outcome{Status::NotFound, false, {}};
        const EntryId id = idOfFolder(folder);
        // Without an id to compare, the removal of the entry itself gives the outcome.
        if (!id.isKnown() && !m_expected.idOf(folder).isKnown())
            return {};
        if (!m_expected.accept(folder, id))
            return Outcome{Status::Replaced, false, {}};
        return {};
    }

    ExpectedFolders m_expected;
    EntryRemover m_entries;
};

FileRemover::FileRemover()
    : d(std::make_unique<Private>())
{
}

FileRemover::~FileRemover() = default;

void FileRemover::setListed(const ListedFolders *listed)
{
    d->setListed(listed);
}

FileRemover::Outcome FileRemover::remove(const QString &path, const std::atomic_bool *stopRequested)
{
    return d->remove(path, Private::Folders::Remove, stopRequested, {});
}

FileRemover::Outcome FileRemover::removeFile(const QString &path,
                                             const std::optional<ListedFile> &listed)
{
    return d->remove(path, Private::Folders::Leave, nullptr, listed);
}

} // namespace platform
