#include "processes.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// The first word of the command line. For a Windows program under Wine it is its Windows path. The
// kernel's own short name is not used, because it ends after 15 characters.
QString programName(const QString &process)
{
    QFile commandLine(u"/proc/%1/cmdline"_s.arg(process));
    if (!commandLine.open(QIODevice::ReadOnly))
        return {};
    const QByteArray all = commandLine.readAll();
    const QByteArray program = all.left(all.indexOf('\0'));
    const qsizetype folderEnd = qMax(program.lastIndexOf('/'), program.lastIndexOf('\\'));
    return QString::fromUtf8(program.mid(folderEnd + 1)).toLower();
}

} // namespace

QSet<QString> runningPrograms()
{
    QSet<QString> names;
    const QStringList entries = QDir(u"/proc"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        if (!entry.at(0).isDigit())
            continue;
        const QString name = programName(entry);
        if (!name.isEmpty())
            names.insert(name);
    }
    return names;
}

} // namespace platform
