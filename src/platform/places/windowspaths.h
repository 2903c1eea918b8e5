#pragma once

#include "readfailures.h"

#include <QString>

#include <memory>
#include <optional>

// The meaning of Windows paths and variables on this system. On Linux the Wine prefix defines it.
namespace platform {

/// The place of the Windows path @p path, such as "C:\Program Files\x.exe", in this file system. On
/// Windows it is the path itself. Existing names are found regardless of case. Missing names keep
/// their spelling.
[[nodiscard]] QString localPath(const QString &path);

/// Whether @p path begins with a drive and a separator. All other paths depend on the current drive
/// or folder.
[[nodiscard]] inline bool isOnDrive(const QString &path)
{
    return path.size() >= 3 && path.at(0).unicode() < 0x80 && path.at(0).isLetter()
        && path.at(1) == u':' && (path.at(2) == u'\\' || path.at(2) == u'/');
}

/// The environment variable @p name, in capitals, as a Windows program sees it; empty when unset.
/// If there is a Wine prefix, only the prefix is asked. Then nothing is returned when the prefix
/// does not tell it.
[[nodiscard]] std::optional<QString> windowsVariable(const QString &name);

/// Whether a path leads to a file or folder.
enum class Presence {
    Present,
    Missing,
    Unknown, ///< it cannot be determined, for instance without the permission
};

/// Tells whether Windows paths lead to a file or folder; links are followed. A run owns one and
/// uses it on one thread. It remembers the contents of folders, so make one for a run and not for a
/// single question.
class PathLookup final
{
    Q_DISABLE_COPY_MOVE(PathLookup)
public:
    PathLookup();
    ~PathLookup();

    /// @p path must begin with a drive and a separator.
    [[nodiscard]] Presence presenceOf(const QString &path);
    /// Why answers were Presence::Unknown.
    [[nodiscard]] const ReadFailures &readFailures() const { return m_readFailures; }

private:
    class Private;
    const std::unique_ptr<Private> d;
    ReadFailures m_readFailures;
};

} // namespace platform
