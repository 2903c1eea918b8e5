#pragma once

#include "entry.h"

#include <QString>

#include <optional>
#include <utility>

namespace platform {

/// Owns a file handle; null is none.
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
    void reset();

private:
    void *m_handle = nullptr;
};

/// What the attributes and the reparse tag of an entry say that it is.
enum class EntryNature {
    File,
    Folder,
    FileLink,
    FolderLink, ///< a symbolic link, junction or mount point
    Special, ///< a pipe, socket or device of the Linux subsystem
};
[[nodiscard]] EntryNature natureOf(quint32 attributes, quint32 reparseTag);

/// Whether the attributes are those of a hidden entry or of one of the system's own. Neither is
/// shown to people.
[[nodiscard]] bool isHidden(quint32 attributes);

/// What an open entry says of itself.
struct EntryAttributes {
    quint32 attributes = 0;
    EntryNature nature = EntryNature::File;
};
/// Nothing on failure, when the thread's last error tells why.
[[nodiscard]] std::optional<EntryAttributes> attributesOf(const UniqueHandle &entry);

/// @p path in the form that the system takes as it stands: of any length, and with names that end
/// in a dot or a blank. Empty when the path is not absolute or holds an empty name, "." or "..".
[[nodiscard]] QString extendedPath(const QString &path);

/// The way back: with forward slashes and without the prefix.
[[nodiscard]] QString plainPath(const QString &extended);

/// How long the part of an extended path is that names the drive or share, its backslash included.
[[nodiscard]] qsizetype rootLength(const QString &extended);

enum class Links { Follow, Open };

/// Opens what stands at an extended path, shared with everybody. On failure the result is invalid
/// and the thread's last error tells why.
[[nodiscard]] UniqueHandle openEntry(const QString &extended, quint32 access, Links links);

/// Unknown on failure, and where the file system numbers nothing.
[[nodiscard]] EntryId idOf(const UniqueHandle &entry);
/// Of the folder at a path with forward slashes; a link there is not followed. On failure unknown,
/// and the thread's last error tells why.
[[nodiscard]] EntryId idOfFolder(const QString &path);

/// Whether a link at an extended path leads to a file.
[[nodiscard]] bool leadsToFile(const QString &extended);

/// The path that the system gives an open entry, below the drive letters or below the devices
/// themselves; empty on failure, as openEntry().
enum class PathForm { Drive, Device };
[[nodiscard]] QString finalPath(const UniqueHandle &entry, PathForm form);

/// The same in a form of this program's own, the volume's number and the path on it, for volumes
/// and paths of which the system tells no more than that.
[[nodiscard]] QString pathOnVolume(const UniqueHandle &entry);

/// Tells whether an open entry is the one that its path names, or whether a link on the way led
/// elsewhere. The drive or share itself is trusted; what is known of the last one is kept.
class PlaceCheck
{
public:
    enum class Place {
        AsAsked,
        OtherCase, ///< in the right folder, by a name that differs in case
        Elsewhere, ///< a link was passed
    };
    [[nodiscard]] Place placeOf(const UniqueHandle &entry, const QString &extended);

private:
    void lookUp(const QString &root);

    QString m_root; ///< as in the extended path, with the backslash
    QString m_device; ///< its finalPath(), with the backslash
    QString m_volume; ///< its pathOnVolume(), with the backslash
};

/// What is said of a path that passes through a link; the system has a number for it.
extern const quint32 linkInPathError;

[[nodiscard]] bool isMissing(quint32 error);
[[nodiscard]] QString reasonOf(quint32 error);

} // namespace platform
