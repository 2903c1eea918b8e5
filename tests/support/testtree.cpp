#include "testtree.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

TestTree::TestTree()
    : m_path(QFileInfo(m_temporary.path()).canonicalFilePath())
{
    // Without a folder of its own the test would write at the root.
    if (m_path.isEmpty())
        qFatal("cannot make a temporary folder: %s", qPrintable(m_temporary.errorString()));
}

TestTree::~TestTree() = default;

QString TestTree::file(const QString &relative, const QByteArray &content) const
{
    const QString filePath = path(relative);
    QDir().mkpath(QFileInfo(filePath).path());
    QFile file(filePath);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(filePath));
    return filePath;
}

QString TestTree::folder(const QString &relative) const
{
    if (!QDir().mkpath(path(relative)))
        qFatal("cannot make %s", qPrintable(path(relative)));
    return path(relative);
}

QString TestTree::link(const QString &target, const QString &relative) const
{
    const QString linkPath = path(relative);
    QDir().mkpath(QFileInfo(linkPath).path());
    if (!QFile::link(target, linkPath))
        qFatal("cannot link %s", qPrintable(linkPath));
    return linkPath;
}

bool TestTree::has(const QString &relative) const
{
    const QFileInfo info(path(relative));
    return info.exists() || info.isSymLink();
}

QMap<QString, QString> TestTree::snapshot() const
{
    return snapshotOf(m_path);
}

QMap<QString, QString> snapshotOf(const QString &folder)
{
    QMap<QString, QString> entries;
    QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QFileInfo info(it.next());
        QString description = u"folder"_s;
        if (info.isSymLink()) {
            description = u"link to "_s + info.symLinkTarget();
        } else if (info.isFile()) {
            QFile file(info.filePath());
            description = file.open(QIODevice::ReadOnly)
                ? u"file %1 %2"_s.arg(QString::number(int(info.permissions())),
                                      QString::fromLatin1(file.readAll().toHex()))
                : u"unreadable file"_s;
        }
        entries.insert(info.filePath(), description);
    }
    return entries;
}

OrdinaryUser::OrdinaryUser()
{
#ifdef Q_OS_UNIX
    constexpr uid_t nobody = 65534;
    m_changed = ::geteuid() == 0 && ::seteuid(nobody) == 0;
#endif
}

OrdinaryUser::~OrdinaryUser()
{
#ifdef Q_OS_UNIX
    if (m_changed && ::seteuid(0) != 0)
        qFatal("cannot become the administrator again");
#endif
}

FileMask::FileMask(unsigned mask)
{
#ifdef Q_OS_UNIX
    m_before = ::umask(mask);
#else
    Q_UNUSED(mask)
#endif
}

FileMask::~FileMask()
{
#ifdef Q_OS_UNIX
    ::umask(m_before);
#endif
}
