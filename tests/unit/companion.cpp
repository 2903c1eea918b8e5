#include "companion.h"

#include "registryfixture.h"
#include "testhome.h"

#include <QDir>
#include <QFile>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace companion {

QStringList environment(const QStringList &variables)
{
    return QProcess::systemEnvironment() + variables;
}

Run run(const QStringList &arguments, const QStringList &variables)
{
    QProcess process;
    process.setEnvironment(environment(variables));
    process.start(QString::fromLocal8Bit(CLI_PROGRAM), arguments);
    if (!process.waitForFinished(60'000))
        qFatal("the companion did not end: %s", qPrintable(process.errorString()));
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

QString fillTemporaryFolder(const TestHome &home)
{
    const QString path = home.folder(u"temp"_s);
    qputenv("TMPDIR", QFile::encodeName(path));
    qputenv("TMP", path.toUtf8());
    qputenv("TEMP", path.toUtf8());
    if (!QDir(path).removeRecursively() || !QDir().mkpath(path + "/sub"_L1))
        qFatal("the temporary folder cannot be emptied");
    writeFile(path, u"a.tmp"_s, 3);
    writeFile(path, u"sub/b"_s, 1500);
    return path;
}

void writeFile(const QString &folder, const QString &name, int size)
{
    QFile file(folder + u'/' + name);
    if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray(size, 'x')) != size)
        qFatal("cannot write %s", qPrintable(file.fileName()));
}

QString addProgram(RegistryFixture &fixture, const TestHome &home, const QString &name)
{
    const QString file = name.section(u' ', -1).toLower() + ".exe"_L1;
#ifdef Q_OS_WIN
    const QString folder = home.folder(u"Sweepwise Files"_s);
    const QString path = QDir::toNativeSeparators(folder) + u'\\' + file;
#else
    const QString folder = home.folder(u"prefix/drive_c/Sweepwise Files"_s);
    const QString path = u"C:\\Sweepwise Files\\"_s + file;
#endif
    writeFile(folder, file, 0);
    const QString key =
        u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"_s + name;
    fixture.addText(key, u"DisplayName"_s, name);
    fixture.addText(key, u"DisplayIcon"_s, path);
    return path;
}

} // namespace companion
