#include "filelocation.h"

#include "ask.h"
#include "filemanager.h"
#include "logger.h"
#include "text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// Gives the texts of this file the context of FileLocation.
struct Text {
    Q_DECLARE_TR_FUNCTIONS(FileLocation)
};

} // namespace

namespace filelocation {

void show(QWidget *parent, const QString &path)
{
    if (path.isEmpty())
        return;
    const QFileInfo file(path);
    const bool isThere = file.exists() || file.isSymLink();
    if (isThere && platform::revealFile(path))
        return;
    Logger::instance().warning(isThere
                                   ? "The file manager could not be started for "_L1 + path
                                   : "The file whose location was asked for is gone: "_L1 + path);
    const QString shownPath = singleLine(QDir::toNativeSeparators(path)).left(1024);
    ask::notice(parent, Text::tr("Notice"),
                (isThere ? Text::tr("The file manager could not be started to show this file:\n%1")
                         : Text::tr("This file no longer exists:\n%1"))
                    .arg(shownPath),
                QMessageBox::Warning);
}

} // namespace filelocation
