#include "processes.h"

#include "unix/openfolder.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>

#include <fcntl.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// The first word of the command line. For a Windows program under Wine it is its Windows path. The
// kernel's own short name is not used, because it ends after 15 characters. Empty for a process
// that has ended meanwhile or that the kernel hides; no value if it could not be read.
std::optional<QString> programName(const QString &process)
{
    const QByteArray path = "/proc/" + process.toLatin1() + "/cmdline";
    UniqueFd fd(::open(path.constData(), O_RDONLY | O_CLOEXEC));
    if (!fd.isValid()) {
        const bool isGone = errno == ENOENT || errno == ESRCH;
        return isGone || errno == EACCES || errno == EPERM ? std::optional(QString())
                                                           : std::nullopt;
    }
    QFile commandLine;
    if (!commandLine.open(fd.get(), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return {};
    fd.release();
    const QByteArray all = commandLine.readAll();
    const QByteArray program = all.left(all.indexOf('\0'));
    const qsizetype folderEnd = qMax(program.lastIndexOf('/'), program.lastIndexOf('\\'));
    return QString::fromUtf8(program.mid(folderEnd + 1)).toLower();
}

} // namespace

std::optional<QSet<QString>> runningPrograms()
{
    QString error;
    const std::optional<QStringList> entries = namesInFolder(u"/proc"_s, error);
    // The folder is empty when the list is not there.
    if (!entries || !entries->contains(QString::number(QCoreApplication::applicationPid())))
        return {};
    QSet<QString> names;
    for (const QString &entry : *entries) {
        if (!entry.at(0).isDigit())
            continue;
        const std::optional<QString> name = programName(entry);
        if (!name)
            return {};
        if (!name->isEmpty())
            names.insert(*name);
    }
    return names;
}

} // namespace platform
