#pragma once

#include <functional>

class QByteArray;
class QFile;
class QString;

/// The files that the program writes for itself: settings, log, backups. They are for the user
/// alone. On Linux this is made by their mode, whatever the process's mask for new files says; on
/// Windows they inherit the rights of their folder, which is below the user's profile.
namespace platform {

/// Opens the file at the absolute @p path in @p file, for appending text. A missing file is made,
/// on Linux for the user alone; on Windows it inherits the rights of its folder.
///
/// Only a regular file with one name is opened: no link, also no hard one, which could lead into
/// another file, and no pipe or device, which could make the program wait for ever. On Linux the
/// file must belong to the user. Otherwise returns false, and @p error says why, for people.
[[nodiscard]] bool openForAppending(const QString &path, QFile &file, QString &error);

/// Whether the file at @p path belongs to the user. An administrator may use those of others, for
/// instance with the home of the user who became one. Always true on Windows.
[[nodiscard]] bool isOwnFile(const QString &path);

/// Makes the folder at @p path and the missing ones above it, for the user alone. Folders that
/// exist keep their mode. Returns whether the folder is there now. If not, @p error says why, for
/// people.
[[nodiscard]] bool makePrivateFolder(const QString &path, QString &error);

/// Makes an empty file at @p path, for the user alone. The toolkit writes it later and keeps the
/// mode. Does nothing if anything is there, and on Windows.
void makePrivateFile(const QString &path);

/// Writes @p bytes to a new file for the user alone and puts it in the place of @p path. Returns
/// when data and name are on the disk. Asks @p findProblem right before the replacement; a text is
/// a reason against it. After a failure @p error says why, for people. What was at the path is then
/// unchanged, unless only the new name could not be made safe against a power cut. A link at the
/// path is replaced, not followed; on Windows it is refused.
[[nodiscard]] bool replaceFile(const QString &path, const QByteArray &bytes,
                               const std::function<QString()> &findProblem, QString &error);

} // namespace platform
