#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// File functions for these tests. They use exact names and follow no links, unlike those of Qt.
namespace windowsfiles {

/// The attributes as the system's numbers. Ends the program when they cannot be set or read.
void setAttributes(const QString &path, quint32 attributes);
[[nodiscard]] quint32 attributes(const QString &path);

/// Makes a file or a folder with exactly this name, of any length, in an existing folder.
void makeFile(const QString &path, const QByteArray &content = "content");
void makeFolder(const QString &path);
/// The content of the file with exactly this name; null when there is none.
[[nodiscard]] QByteArray content(const QString &path);

[[nodiscard]] bool isWine();
/// Makes a real link to a folder: a junction on Windows, a Unix link below Wine.
void makeFolderLink(const QString &path, const QString &target);
void removeFolderLink(const QString &path);
/// Removes a folder with its contents without Wine, for names that Wine cannot distinguish.
void removeTreeBelowWine(const QString &path);
/// Makes a file without Wine. Wine would use the existing file whose name differs only in case.
void makeEmptyFileBelowWine(const QString &folder, const QString &name);
/// Makes @p count files in an empty folder. Under Wine this is done without Wine, which would
/// search the folder for each file. removeManyFiles() removes the folder with its files.
void makeManyFiles(const QString &folder, int count);
void removeManyFiles(const QString &folder);

/// The sorted paths that a walk lists, relative to the root.
[[nodiscard]] QStringList walk(const QString &root);

} // namespace windowsfiles
