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

    /// What a path leads to. Names are found regardless of case.
    struct Entry {
        Presence presence = Presence::Missing;
        QString path; ///< in this file system; only counts if it is present
    };

    /// The folder @p relative, a cleaned path, on the drive in @p driveFolder. It is looked for
    /// once: a registry can name very many files in one folder.
    const Entry &folderAt(const QString &driveFolder, const QString &relative,
                          ReadFailures &failures)
    {
        const QString key = driveFolder + relative;
        auto found = m_folders.find(key);
        if (found == m_folders.end()) {
            Entry entry{Presence::Present, driveFolder};
            const QStringList names = relative.split(u'/', Qt::SkipEmptyParts);
            for (const QString &name : names) {
                entry = entryIn(entry.path, name, failures);
                if (entry.presence != Presence::Present)
                    break;
            }
            found = m_folders.insert(key, entry);
        }
        return *found;
    }
    /// Whether folderAt() has been asked for this folder, and it is missing.
    bool isKnownMissing(const QString &driveFolder, const QString &relative) const
    {
        const auto found = m_folders.constFind(driveFolder + relative);
        return found != m_folders.cend() && found->presence == Presence::Missing;
    }

    /// The entry @p name in the folder @p folder. A link may lead nowhere.
    Entry entryIn(const QString &folder, const QString &name, ReadFailures &failures)
    {
        const QString exact = folder + u'/' + name;
        const Presence presence = presenceAt(exact, failures);
        return presence == Presence::Missing ? entryInOtherCase(folder, name, failures)
                                             : Entry{presence, exact};
    }
    /// The same for a name that is not there in exactly this case.
    Entry entryInOtherCase(const QString &folder, const QString &name, ReadFailures &failures)
    {
        const Listing &listing = listingOf(folder, failures);
        if (listing.presence != Presence::Present)
            return {listing.presence, {}};
        const auto found = listing.names.constFind(name.toCaseFolded());
        if (found == listing.names.cend())
            return {Presence::Missing, {}};
        return {Presence::Present, folder + u'/' + *found};
    }

private:
    struct Listing {
        Presence presence = Presence::Missing;
        QHash<QString, QString> names; ///< by their case-folded form
    };

    const Listing &listingOf(const QString &folder, ReadFailures &failures)
    {
        auto listed = m_listings.find(folder);
        if (listed == m_listings.end())
            listed = m_listings.insert(folder, list(folder, failures));
        return *listed;
    }
    static Listing list(const QString &folder, ReadFailures &failures)
    {
        // With the separator, a file is not found.
        if (const Presence presence = presenceAt(folder + u'/', failures);
            presence != Presence::Present)
            return {presence, {}};
        QString error;
        const std::optional<QStringList> entries = namesInFolder(folder, error);
        if (!entries) {
            failures.add(folder, error);
            return {Presence::Unknown, {}};
        }
        Listing listing{Presence::Present, {}};
        for (const QString &entry : *entries)
            listing.names.insert(entry.toCaseFolded(), entry);
        return listing;
    }

    QHash<QString, Listing> m_listings;
    QHash<QString, Entry> m_folders;
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
    const QString cleaned = QDir::cleanPath(relative);
    const qsizetype nameBegin = cleaned.lastIndexOf(u'/') + 1;
    const QString folder = cleaned.first(nameBegin - 1);
    // The system resolves ".." behind a link in another way than cleanPath().
    if (cleaned == relative && d->isKnownMissing(drive.folder, folder))
        return Presence::Missing;
    const QString exact = drive.folder + relative;
    if (const Presence presence = presenceAt(exact, m_readFailures); presence != Presence::Missing)
        return presence;
    const Private::Entry &parent = d->folderAt(drive.folder, folder, m_readFailures);
    if (parent.presence != Presence::Present)
        return parent.presence;
    const QString name = cleaned.mid(nameBegin);
    const Private::Entry entry = parent.path + u'/' + name == exact
        ? d->entryInOtherCase(parent.path, name, m_readFailures)
        : d->entryIn(parent.path, name, m_readFailures);
    if (entry.presence != Presence::Present)
        return entry.presence;
    // A path that ends in a separator can only name a folder. A link can be broken.
    return presenceAt(relative.endsWith(u'/') ? entry.path + u'/' : entry.path, m_readFailures);
}

} // namespace platform
