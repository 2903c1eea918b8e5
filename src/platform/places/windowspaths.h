#pragma once

#include <QString>

#include <memory>
#include <optional>

// What a path or variable of the Windows world means here. Elsewhere than on Windows it is the Wine
// prefix that answers.
namespace platform {

/// Where the Windows path @p path, such as "C:\Program Files\x.exe", lies in this file system; on
/// Windows the path itself. Names are matched to those on the disk without regard to case; what
/// does not exist keeps its name.
[[nodiscard]] QString localPath(const QString &path);

/// Whether @p path begins with a drive and a separator. All others depend on what is current.
[[nodiscard]] inline bool isOnDrive(const QString &path)
{
    return path.size() >= 3 && path.at(0).unicode() < 0x80 && path.at(0).isLetter()
        && path.at(1) == u':' && (path.at(2) == u'\\' || path.at(2) == u'/');
}

/// The environment variable @p name, in capitals, as a Windows program sees it; empty when unset.
/// With a Wine prefix only the prefix is asked, whatever is set here: nothing when it does not
/// tell.
[[nodiscard]] std::optional<QString> windowsVariable(const QString &name);

enum class Presence {
    Present,
    Missing,
    Unknown, ///< it cannot be told, for instance for want of rights
};

/// Tells whether Windows paths lead to a file or folder; links are followed. Remembers what it has
/// seen of folders: make one for a run, not one for a question.
class PathLookup final
{
    Q_DISABLE_COPY_MOVE(PathLookup)
public:
    PathLookup();
    ~PathLookup();

    /// @p path begins with a drive and a separator.
    [[nodiscard]] Presence presenceOf(const QString &path);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace platform
