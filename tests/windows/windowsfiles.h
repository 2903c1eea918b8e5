#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What the tests of this folder need beyond Qt, which bends names and follows links.
namespace windowsfiles {

/// The attributes as the system's numbers; fails the program when they cannot be set or read.
void setAttributes(const QString &path, quint32 attributes);
[[nodiscard]] quint32 attributes(const QString &path);

/// Makes a file or a folder by exactly this name, of whatever length, below existing folders.
void makeFile(const QString &path, const QByteArray &content = "content");
void makeFolder(const QString &path);
/// The content of the file of exactly this name; null when there is none.
[[nodiscard]] QByteArray content(const QString &path);

[[nodiscard]] bool isWine();
/// Makes a real link to a folder: a junction, under Wine a link of the file system below.
void makeFolderLink(const QString &path, const QString &target);
void removeFolderLink(const QString &path);
/// Removes a folder with all that is in it past Wine, for names that Wine cannot tell apart.
void removeTreeBelowWine(const QString &path);
/// Makes a file past Wine, which would take a name that differs in case for the one that is there.
void makeEmptyFileBelowWine(const QString &folder, const QString &name);
/// Makes so many files in an empty folder, past Wine where that would look through the folder for
/// each; and removes the folder with them.
void makeManyFiles(const QString &folder, int count);
void removeManyFiles(const QString &folder);

/// The paths that a walk lists, sorted, without the root in front.
[[nodiscard]] QStringList walk(const QString &root);

} // namespace windowsfiles
