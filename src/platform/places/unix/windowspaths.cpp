#include "windowspaths.h"

#include "unix/openfolder.h"
#include "unix/wineprefix.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <cerrno>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace platform {

QString localPath(const QString &path)
{
    QString local = path;
    local.replace(u'\\', u'/');
    if (local.startsWith("//?/"_L1))
        local.remove(0, 4);
    if (local.size() < 2 || local.at(1) != u':' || !local.at(0).isLetter())
        return local;
    const QString drive = wineprefix::drive(local.at(0));
    if (drive.isEmpty())
        return path; // a path with backslashes names nothing here
    const QString exact = drive + u'/' + local.mid(2);
    if (QFileInfo::exists(exact))
        return exact;
    // A path that ends in a separator can only name a folder.
    return wineprefix::matchCase(drive, local.mid(2)) + (local.endsWith(u'/') ? u"/"_s : QString());
}

std::optional<QString> windowsVariable(const QString &name)
{
    if (wineprefix::folder().isEmpty())
        return qEnvironmentVariable(name.toLatin1().constData());
    return wineprefix::variable(name);
}

namespace {

// The system's answer for exactly this path; case counts.
Presence presenceAt(const QString &path, ReadFailures &failures)
{
    struct stat data {
    };
    if (::stat(QFile::encodeName(path).constData(), &data) == 0)
        return Presence::Present;
    switch (errno) {
    case ENOENT:
    case ENOTDIR:
    case ELOOP:
    case ENAMETOOLONG:
        return Presence::Missing;
    default:
        failures.add(path, reasonOf(errno));
        return Presence::Unknown;
    }
}

} // namespace

/// The drives and folders that were looked up. A PathLookup owns it and uses it on its thread.
class PathLookup::Private
{
public:
    /// The names in a folder by their case-folded form. Nothing when the folder cannot be listed.
    using Names = std::optional<QHash<QString, QString>>;

    const Names &namesIn(const QString &folder, ReadFailures &failures)
    {
        auto listed = m_folders.find(folder);
        if (listed == m_folders.end())
            listed = m_folders.insert(folder, list(folder, failures));
        return *listed;
    }
    /// A drive's folder; empty without the drive. @p problem says why it cannot be determined.
    struct Drive {
        QString folder;
        QString problem;
    };
    const Drive &driveAt(QChar letter)
    {
        auto found = m_drives.find(letter.toLower());
        if (found == m_drives.end()) {
            Drive drive;
            drive.folder = wineprefix::drive(letter, &drive.problem);
            found = m_drives.insert(letter.toLower(), drive);
        }
        return *found;
    }

private:
    static Names list(const QString &folder, ReadFailures &failures)
    {
        QString error;
        const std::optional<QStringList> entries = namesInFolder(folder, error);
        if (!entries) {
            failures.add(folder, error);
            return {};
        }
        QHash<QString, QString> names;
        for (const QString &entry : *entries)
            names.insert(entry.toCaseFolded(), entry);
        return names;
    }

    QHash<QString, Names> m_folders;
    QHash<QChar, Drive> m_drives;
};

PathLookup::PathLookup()
    : d(std::make_unique<Private>())
{
}

PathLookup::~PathLookup() = default;

Presence PathLookup::presenceOf(const QString &path)
{
    QString relative = path.mid(2);
    relative.replace(u'\\', u'/');
    const Private::Drive &drive = d->driveAt(path.at(0));
    if (!drive.problem.isEmpty()) {
        m_readFailures.add(path.left(2), drive.problem);
        return Presence::Unknown;
    }
    if (drive.folder.isEmpty())
        return Presence::Missing;
    QString current = drive.folder;
    const Presence exact = presenceAt(current + relative, m_readFailures);
    if (exact != Presence::Missing)
        return exact;
    const QStringList names = QDir::cleanPath(relative).split(u'/', Qt::SkipEmptyParts);
    for (const QString &name : names) {
        const QString next = current + u'/' + name;
        const Presence presence = presenceAt(next, m_readFailures);
        if (presence == Presence::Unknown)
            return presence;
        if (presence == Presence::Present) {
            current = next;
            continue;
        }
        // With the separator, a file is not found.
        if (const Presence folder = presenceAt(current + u'/', m_readFailures);
            folder != Presence::Present)
            return folder;
        const Private::Names &listed = d->namesIn(current, m_readFailures);
        if (!listed)
            return Presence::Unknown;
        const auto found = listed->constFind(name.toCaseFolded());
        if (found == listed->cend())
            return Presence::Missing;
        current += u'/' + *found;
    }
    // A path that ends in a separator can only name a folder. A link can be broken.
    return presenceAt(relative.endsWith(u'/') ? current + u'/' : current, m_readFailures);
}

} // namespace platform
