#include "testhome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

TestHome::TestHome()
    : m_folder(QFileInfo(m_temporary.path()).canonicalFilePath())
{
    // Without a folder of its own the test would read and write the developer's files.
    if (m_folder.isEmpty())
        qFatal("cannot make a temporary folder: %s", qPrintable(m_temporary.errorString()));
    // The rights of the test may be taken away for a while, see OrdinaryUser. It still finds its
    // home then.
    QFile::setPermissions(m_folder,
                          QFile::permissions(m_folder) | QFile::ExeGroup | QFile::ExeOther);
    setFolderVariable("HOME", u"home"_s);
    setFolderVariable("XDG_CONFIG_HOME", u"config"_s);
    setFolderVariable("XDG_DATA_HOME", u"data"_s);
    setFolderVariable("XDG_CACHE_HOME", u"cache"_s);
    setFolderVariable("WINEPREFIX", u"prefix"_s);
#ifdef Q_OS_UNIX
    for (const char *variable : {"LOCALAPPDATA", "APPDATA", "USERPROFILE", "PROGRAMDATA", "WINDIR",
                                 "SYSTEMDRIVE", "TMPDIR"})
        qunsetenv(variable);
#endif
}

QString TestHome::folder(const QString &relative) const
{
    const QString path = m_folder + u'/' + relative;
    if (!QDir().mkpath(path))
        qFatal("cannot make %s", qPrintable(path));
    return path;
}

QString TestHome::setFolderVariable(const char *variable, const QString &relative) const
{
    const QString path = folder(relative);
    qputenv(variable, path.toUtf8());
    return path;
}
