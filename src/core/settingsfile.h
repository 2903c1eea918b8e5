#pragma once

#include <QString>
#include <QStringList>

#include <memory>

class QSettings;

/// The program's settings files. Each is opened by its own name alone: the toolkit would also open
/// the files of the organisation and of the system, and wait there for ever if one is a pipe.
///
/// A damaged file is renamed to "<name>.damaged" before it is opened, and the program starts with
/// defaults. A damaged file is not a regular file but for instance a link, whose target the program
/// would overwrite, or a pipe, or it belongs to somebody else, or it is far too large for a few
/// options. If it cannot be renamed, it is left alone and another name is used.
///
/// A missing file is made on Linux, for the user alone, because the toolkit would make it for
/// everybody to read.
namespace settingsfile {

/// The options of the window. @p problems gets what was done with damaged files, for the log.
[[nodiscard]] std::unique_ptr<QSettings> openOptions(QStringList &problems);

/// The place of the language, which the user chooses before anything else is read. On Windows it is
/// in the registry.
[[nodiscard]] std::unique_ptr<QSettings> openLanguage();

/// Sets aside what has taken the place of the options' file since it was opened. To be called right
/// before they are written. Returns whether they can be.
[[nodiscard]] bool makeRoom(const QSettings &settings, QStringList &problems);

} // namespace settingsfile
