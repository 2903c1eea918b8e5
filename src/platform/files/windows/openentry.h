#pragma once

#include "entry.h"

#include <QString>

#include <optional>
#include <utility>

namespace platform {

/// Owns a file handle and closes it; null is none. It can be moved, not copied.
class UniqueHandle
{
public:
    UniqueHandle() = default;
    explicit UniqueHandle(void *handle)
        : m_handle(handle)
    {
    }
    UniqueHandle(UniqueHandle &&other) noexcept
        : m_handle(std::exchange(other.m_handle, nullptr))
    {
    }
    UniqueHandle &operator=(UniqueHandle &&other) noexcept
    {
        if (this != &other) {
            reset();
            m_handle = std::exchange(other.m_handle, nullptr);
        }
        return *this;
    }
    UniqueHandle(const UniqueHandle &) = delete;
    UniqueHandle &operator=(const UniqueHandle &) = delete;
    ~UniqueHandle() { reset(); }

    [[nodiscard]] void *get() const { return m_handle; }
    [[nodiscard]] bool isValid() const { return m_handle != nullptr; }
    /// Gives the handle to the caller.
    [[nodiscard]] void *release() { return std::exchange(m_handle, nullptr); }
    void reset();

private:
    void *m_handle = nullptr;
};

/// The kind of an entry according to its attributes and its reparse tag.
enum class EntryNature {
    File,
    Folder,
    FileLink,
    FolderLink, ///< a symbolic link, junction or mount point
    Special, ///< a pipe, socket or device of the Linux subsystem
};
[[nodiscard]] EntryNature natureOf(quint32 attributes, quint32 reparseTag);

/// Whether the attributes are those of a hidden entry or of a system entry. People see neither.
[[nodiscard]] bool isHidden(quint32 attributes);

/// The attributes of an open entry.
struct EntryAttributes {
    quint32 attributes = 0;
    EntryNature nature = EntryNature::File;
};
/// Returns nothing on failure; then the thread's last error tells why.
[[nodiscard]] std::optional<EntryAttributes> attributesOf(const UniqueHandle &entry);

/// @p path in the extended form. The system takes it unchanged, with any length and with names that
/// end in a dot or a blank. Empty when the path is not absolute or contains an empty name, "." or
/// "..".
[[nodiscard]] QString extendedPath(const QString &path);

/// The reverse of extendedPath(): with forward slashes and without the prefix.
[[nodiscard]] QString plainPath(const QString &extended);

/// The length of the part of an extended path that names the drive or share, its backslash
/// included.
[[nodiscard]] qsizetype rootLength(const QString &extended);

/// Whether a link at the end of a path is followed or opened itself.
enum class Links { Follow, Open };

/// Opens the entry at an extended path and lets all other programs use it. On failure the result is
/// invalid and the thread's last error tells why.
[[nodiscard]] UniqueHandle openEntry(const QString &extended, quint32 access, Links links);

/// The id of an open entry. Unknown on failure, and on file systems without file numbers.
[[nodiscard]] EntryId idOf(const UniqueHandle &entry);
/// The id of the folder at a path with forward slashes. A link there is not followed. Unknown on
/// failure; then the thread's last error tells why.
[[nodiscard]] EntryId idOfFolder(const QString &path);

/// Whether a link at an extended path leads to a file. Nothing when that cannot be determined; then
/// the thread's last error tells why.
[[nodiscard]] std::optional<bool> leadsToFile(const QString &extended);

/// Whether a path begins with a drive letter or with the name of a device.
enum class PathForm { Drive, Device };
/// The path that the system reports for an open entry. Empty on failure; then the thread's last
/// error tells why.
[[nodiscard]] QString finalPath(const UniqueHandle &entry, PathForm form);

/// The same as the volume's number and the path on the volume, in a form of this program's own. For
/// volumes and paths of which the system tells nothing else.
[[nodiscard]] QString pathOnVolume(const UniqueHandle &entry);

/// Tells whether an open entry is the one that its path names, or whether a link in the path led
/// elsewhere. The drive or share itself is trusted. Keeps what it knows of the last drive. Its
/// owner uses it on one thread.
class PlaceCheck
{
public:
    enum class Place {
        AsAsked,
        OtherCase, ///< in the requested folder, but the name differs in case
        Elsewhere, ///< the path passes through a link
    };
    [[nodiscard]] Place placeOf(const UniqueHandle &entry, const QString &extended);

private:
    void lookUp(const QString &root);

    QString m_root; ///< as in the extended path, with the backslash
    QString m_device; ///< its finalPath() as a device, with the backslash
    QString m_volume; ///< its pathOnVolume(), with the backslash
};

/// The system's error for a path that passes through a link.
extern const quint32 linkInPathError;

/// Whether the system's error means that there is no such entry, drive or share, or no disk
/// in the drive.
[[nodiscard]] bool isMissing(quint32 error);
/// The system's text for an error, for people.
[[nodiscard]] QString reasonOf(quint32 error);

} // namespace platform
