#include "registry_p.h"

#include "filesync.h"
#include "unix/openfolder.h"
#include "unix/registryfile.h"
#include "unix/registrytext.h"
#include "unix/wineprefix.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>
#include <QSet>
#include <QThread>

#include <algorithm>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// Identifies the state of a file, to notice that another program has written it.
struct Stamp {
    bool exists = false;
    ino_t inode = 0;
    off_t size = 0;
    timespec changed{};

    [[nodiscard]] bool operator==(const Stamp &other) const
    {
        return exists == other.exists && inode == other.inode && size == other.size
            && changed.tv_sec == other.changed.tv_sec && changed.tv_nsec == other.changed.tv_nsec;
    }
};

// If the file cannot be examined, @p error says why.
Stamp stampOf(const QString &path, QString &error)
{
    const std::optional<FileStatus> status = examineFile(path, error);
    return status ? Stamp{true, status->st_ino, status->st_size, status->st_mtim} : Stamp{};
}

/// Keeps other runs of this program from replacing the prefix's files between a look at them and
/// their replacement. Such a run would undo what the other has just saved. The lock ends with the
/// returned handle, also when the process is killed, and leaves no file behind. If another run
/// holds it for too long, @p error says so. A file system without locks is used without.
UniqueFd lockPrefix(const QString &prefix, QString &error)
{
    constexpr int pause = 10; // milliseconds
    constexpr int attempts = 500;
    UniqueFd folder(
        ::open(QFile::encodeName(prefix).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isValid())
        return folder; // what is read or written below it has its own error
    for (int i = 0; i < attempts; ++i) {
        if (::flock(folder.get(), LOCK_EX | LOCK_NB) == 0
            || (errno != EWOULDBLOCK && errno != EINTR))
            return folder;
        QThread::msleep(pause);
    }
    error = qt_error_string(EWOULDBLOCK);
    return folder;
}

/// One registry file of the prefix as it was read. The Registry owns it.
struct HiveFile {
    QString path;
    Stamp stamp;
    std::optional<RegistryFile> content;
    QString error; ///< why there is no content; empty when the file does not exist
};

HiveFile readHive(const QString &path)
{
    HiveFile hive{path, {}, {}, {}};
    hive.stamp = stampOf(path, hive.error);
    if (hive.error.isEmpty())
        hive.content = RegistryFile::read(path, hive.error);
    return hive;
}

// Wine's server works in a folder with the prefix's device and file number in its name.
// Nothing if that cannot be determined; @p error then says why.
std::optional<bool> isPrefixInUse(const QString &prefix, QString &error)
{
    struct stat data {
    };
    if (::stat(QFile::encodeName(prefix).constData(), &data) != 0) {
        error = reasonOf(errno);
        return {};
    }
    const std::optional<QStringList> processes = namesInFolder(u"/proc"_s, error);
    if (!processes)
        return {};
    // The folder is empty when the list is not there.
    if (!processes->contains(QString::number(QCoreApplication::applicationPid()))) {
        error = reasonOf(ENODEV);
        return {};
    }
    const QString name =
        u"/server-%1-%2"_s.arg(QString::number(data.st_dev, 16), QString::number(data.st_ino, 16));
    for (const QString &process : *processes) {
        if (!process.at(0).isDigit())
            continue;
        const QByteArray target = readLink("/proc/" + process.toLatin1() + "/cwd");
        if (QFile::decodeName(target).endsWith(name))
            return true;
        // A process that has ended, or is of another user, or works in a much longer folder. Wine's
        // server for this prefix is the user's.
        const bool isForeign =
            errno == ENOENT || errno == ESRCH || errno == EACCES || errno == ENAMETOOLONG;
        if (target.isEmpty() && !isForeign) {
            error = reasonOf(errno);
            return {};
        }
    }
    return false;
}

} // namespace

/// The two registry files of the prefix, read when they are first needed.
class Registry::Private
{
public:
    /// A key in one of the files.
    struct Place {
        RegistryFile *file = nullptr;
        RegistryFile::Key key = RegistryFile::none;
        QString path = {}; ///< of the file
    };

    [[nodiscard]] QList<Place> places(Hive hive, const QString &key);
    /// The same, to read values.
    [[nodiscard]] QList<Place> placesOfValues(Hive hive, const QString &key);
    [[nodiscard]] HiveFile &file(Hive hive);
    /// The place for a change of an existing key. Without a file or key it is empty and the error
    /// is set.
    [[nodiscard]] Place placeToChange(Hive hive, const QString &key);
    bool refuse(const QString &message)
    {
        error = message;
        return false;
    }
    bool refuseUnread(const HiveFile &hive)
    {
        return refuse(hive.error.isEmpty()
                          ? RegistryTexts::tr("There is no registry")
                          : RegistryTexts::tr("%1 cannot be read: %2").arg(hive.path, hive.error));
    }
    bool isAllowed(Hive hive, const QString &key)
    {
        if (hive == Hive::ClassesRoot)
            return refuse(mergedClassesError());
        return Registry::isKeyPath(key)
            || refuse(RegistryTexts::tr("'%1' is not the path of a key").arg(key));
    }

    QString error;
    QList<Hive> saved;
    ReadFailures readFailures;

private:
    std::optional<HiveFile> m_machine;
    std::optional<HiveFile> m_user;
};

HiveFile &Registry::Private::file(Hive hive)
{
    const bool isUser = hive == Hive::CurrentUser;
    std::optional<HiveFile> &file = isUser ? m_user : m_machine;
    if (!file) {
        QString problem;
        const QString prefix = wineprefix::folder(&problem);
        const QString path = prefix + (isUser ? "/user.reg"_L1 : "/system.reg"_L1);
        if (!problem.isEmpty())
            file = HiveFile{wineprefix::requestedFolder(), {}, {}, problem};
        else
            file = prefix.isEmpty() ? HiveFile() : readHive(path);
        if (!file->error.isEmpty())
            readFailures.add(file->path, file->error);
    }
    return *file;
}

QList<Registry::Private::Place> Registry::Private::places(Hive hive, const QString &key)
{
    QList<Place> found;
    const auto add = [&](Hive where, const QString &path) {
        HiveFile &content = file(where);
        const RegistryFile::Key place =
            content.content ? content.content->find(path) : RegistryFile::none;
        if (place != RegistryFile::none)
            found.append({&*content.content, place, content.path});
    };
    if (hive == Hive::ClassesRoot) {
        add(Hive::CurrentUser, classPath(key));
        add(Hive::LocalMachine, classPath(key));
    } else {
        add(hive, key);
    }
    return found;
}

QList<Registry::Private::Place> Registry::Private::placesOfValues(Hive hive, const QString &key)
{
    const QList<Place> found = places(hive, key);
    for (const Place &place : found) {
        if (place.file->hasUnreadableValues(place.key))
            readFailures.add(place.path, RegistryTexts::tr("It is damaged"));
    }
    return found;
}

Registry::Private::Place Registry::Private::placeToChange(Hive hive, const QString &key)
{
    if (!isAllowed(hive, key))
        return {};
    const QList<Place> found = places(hive, key);
    if (found.isEmpty()) {
        const HiveFile &content = file(hive);
        if (content.error.isEmpty())
            error = RegistryTexts::tr("There is no such key");
        else
            refuseUnread(content);
        return {};
    }
    if (found.constFirst().file->isLink(found.constFirst().key)) {
        error = RegistryTexts::tr("The key is a link to another one");
        return {};
    }
    return found.constFirst();
}

Registry::Registry()
    : d(std::make_unique<Private>())
{
}

Registry::~Registry() = default;
Registry::Registry(Registry &&other) noexcept = default;
Registry &Registry::operator=(Registry &&other) noexcept = default;

bool Registry::hasKey(Hive hive, const QString &key) const
{
    return !d->places(hive, key).isEmpty();
}

QStringList Registry::subkeys(Hive hive, const QString &key) const
{
    // The machine's keys first, then the keys that only the user has.
    const QList<Private::Place> places = d->places(hive, key);
    QStringList names;
    QSet<QString> seen;
    for (auto place = places.crbegin(); place != places.crend(); ++place) {
        const QStringList more = place->file->subkeys(place->key);
        if (places.size() == 1)
            return more;
        for (const QString &name : more) {
            const QString folded = registrytext::folded(name);
            if (!seen.contains(folded))
                names.append(name);
            seen.insert(folded);
        }
    }
    return names;
}

QStringList Registry::valueNames(Hive hive, const QString &key) const
{
    const QList<Private::Place> places = d->placesOfValues(hive, key);
    if (places.size() == 1)
        return places.constFirst().file->valueNames(places.constFirst().key);
    QStringList names;
    QSet<QString> seen;
    for (const Private::Place &place : places) {
        for (const QString &name : place.file->valueNames(place.key)) {
            const QString folded = registrytext::folded(name);
            if (!seen.contains(folded))
                names.append(name);
            seen.insert(folded);
        }
    }
    return names;
}

std::optional<RegistryValue> Registry::value(Hive hive, const QString &key,
                                             const QString &name) const
{
    for (const Private::Place &place : d->placesOfValues(hive, key)) {
        if (std::optional<RegistryValue> found = place.file->value(place.key, name))
            return found;
    }
    return std::nullopt;
}

std::optional<QList<RegistryValue>> Registry::values(Hive hive, const QString &key,
                                                     qsizetype maximumSize) const
{
    if (!hasKey(hive, key))
        return std::nullopt;
    QList<RegistryValue> all;
    for (const QString &name : valueNames(hive, key)) {
        std::optional<RegistryValue> found = value(hive, key, name);
        if (found && found->data.size() <= maximumSize)
            all.append(*std::move(found));
    }
    return all;
}

bool Registry::deleteTree(Hive hive, const QString &key)
{
    const Private::Place place = d->placeToChange(hive, key);
    if (place.file)
        place.file->removeTree(place.key);
    return place.file;
}

bool Registry::deleteKey(Hive hive, const QString &key)
{
    const Private::Place place = d->placeToChange(hive, key);
    if (!place.file)
        return false;
    if (place.file->hasSubkeys(place.key))
        return d->refuse(RegistryTexts::tr("There are keys below it"));
    place.file->removeTree(place.key);
    return true;
}

bool Registry::deleteValue(Hive hive, const QString &key, const QString &name)
{
    const Private::Place place = d->placeToChange(hive, key);
    if (!place.file)
        return false;
    return place.file->removeValue(place.key, name)
        || d->refuse(RegistryTexts::tr("There is no such value"));
}

bool Registry::createKey(Hive hive, const QString &key)
{
    if (!d->isAllowed(hive, key))
        return false;
    if (hasKey(hive, key))
        return true;
    HiveFile &file = d->file(hive);
    if (!file.content)
        return d->refuseUnread(file);
    if (file.content->leadsThroughLink(key))
        return d->refuse(RegistryTexts::tr("The key is a link to another one"));
    file.content->create(key);
    return true;
}

bool Registry::setValue(Hive hive, const QString &key, const RegistryValue &value)
{
    const Private::Place place = d->placeToChange(hive, key);
    if (place.file)
        place.file->setValue(place.key, value);
    return place.file;
}

bool Registry::save()
{
    /// A changed file and its replacement, which has a temporary name until commit().
    struct Change {
        Hive hive;
        HiveFile *file;
        std::unique_ptr<QSaveFile> saver;
    };
    std::vector<Change> changes;
    QList<Hive> saved;
    for (const Hive hive : {Hive::LocalMachine, Hive::CurrentUser}) {
        HiveFile &file = d->file(hive);
        if (file.content && file.content->isChanged())
            changes.push_back({hive, &file, std::make_unique<QSaveFile>(file.path)});
        else
            saved.append(hive);
    }
    // The kept contents no longer equal the files, so they are dropped.
    const auto finish = [this, &saved](const QString &error) {
        ReadFailures failures = std::exchange(d->readFailures, {});
        *d = Private();
        d->readFailures = std::move(failures);
        d->saved = saved;
        d->error = error;
        return error.isEmpty();
    };
    if (changes.empty()) {
        d->saved = saved;
        return true;
    }
    // Each new file is on the disk under another name before the first replaces an old one.
    for (const Change &change : changes) {
        QString error;
        if (!change.saver->open(QIODevice::WriteOnly))
            error = change.saver->errorString();
        if (!error.isEmpty() || !writeToDisk(*change.saver, change.file->content->text(), error))
            return finish(
                RegistryTexts::tr("%1 cannot be written: %2").arg(change.file->path, error));
    }
    const QString prefix = wineprefix::folder();
    QString problem;
    const UniqueFd lock = lockPrefix(prefix, problem);
    if (!problem.isEmpty())
        return finish(RegistryTexts::tr("%1 cannot be written: %2").arg(prefix, problem));
    const std::optional<bool> isInUse = isPrefixInUse(prefix, problem);
    if (!isInUse)
        return finish(RegistryTexts::tr("%1 cannot be read: %2").arg(prefix, problem));
    if (*isInUse)
        return finish(
            RegistryTexts::tr(
                "Windows programs are running in the Wine prefix %1; end them and try again")
                .arg(prefix));
    for (const Change &change : changes) {
        const Stamp stamp = stampOf(change.file->path, problem);
        if (!problem.isEmpty())
            return finish(
                RegistryTexts::tr("%1 cannot be read: %2").arg(change.file->path, problem));
        if (!(stamp == change.file->stamp))
            return finish(RegistryTexts::tr("%1 was changed by another program; scan again")
                              .arg(change.file->path));
    }
    for (const Change &change : changes) {
        if (!change.saver->commit())
            return finish(RegistryTexts::tr("%1 cannot be written: %2")
                              .arg(change.file->path, change.saver->errorString()));
        saved.append(change.hive);
    }
    // The files are in their places. If this fails, a power cut may bring the old ones back whole.
    QString ignored;
    (void)syncFolder(prefix, ignored);
    return finish({});
}

bool Registry::isSaved(Hive hive) const
{
    return d->saved.contains(hive);
}

QString Registry::errorString() const
{
    return d->error;
}

const ReadFailures &Registry::readFailures() const
{
    return d->readFailures;
}

bool isRegistryFile(const QString &path)
{
    struct stat status {
    };
    const bool exists = ::stat(QFile::encodeName(path).constData(), &status) == 0;
    if (exists && S_ISREG(status.st_mode) && beginsAsRegistryFile(path))
        return true;
    QString problem;
    const QString prefix = wineprefix::folder(&problem);
    // It may be one.
    if (!problem.isEmpty())
        return true;
    if (prefix.isEmpty())
        return false;
    for (const QLatin1StringView name : {"/system.reg"_L1, "/user.reg"_L1, "/userdef.reg"_L1}) {
        const QString file = prefix + name;
        struct stat data {
        };
        if (path == file
            || (exists && ::stat(QFile::encodeName(file).constData(), &data) == 0
                && data.st_dev == status.st_dev && data.st_ino == status.st_ino))
            return true;
    }
    return false;
}

} // namespace platform
