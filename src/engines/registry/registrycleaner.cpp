#include "registrycleaner.h"

#include "itemhive.h"
#include "logger.h"
#include "pathcheck.h"
#include "registrybackup.h"
#include "registrychecks.h"
#include "rulefolders.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using platform::Hive;
using platform::Registry;

/// The place of an item's key or value, in the hive that stores it.
struct RegistryCleaner::Place {
    Hive hive;
    QString path; ///< empty for an incomplete path of a class

    [[nodiscard]] bool operator==(const Place &other) const = default;
    friend size_t qHash(const Place &place, size_t seed)
    {
        return qHashMulti(seed, static_cast<int>(place.hive), place.path);
    }

    [[nodiscard]] static Place of(const CleanItem &item)
    {
        const ItemHive hive = ItemHive::forClean(item);
        // Without a name the path would be that of the key that holds all classes.
        const bool isIncompleteClass = hive.isClass() && !Registry::isKeyPath(item.registryKey);
        return {hive.stored, isIncompleteClass ? QString() : hive.storedPath(item.registryKey)};
    }
};

/// A removed entry whose removal is not saved yet.
struct RegistryCleaner::UnsavedRemoval {
    Hive hive;
    QString entry; ///< for people
};

RegistryCleaner::RegistryCleaner(QObject *parent)
    : CleanEngine(parent)
{
    const auto add = [this](Check check, const QString &id, const QString &name,
                            const QString &description, const char *progressText, int level,
                            bool checked = true) {
        m_categories.append({check, id, name, description, {}, {}, progressText, level, checked});
    };
    add(&RegistryChecks::findSoftware, u"invalid_software"_s, tr("Invalid Software Paths"),
        tr("Registry entries pointing to non-existent locations"),
        QT_TR_NOOP("Scanning invalid software paths..."), LowRisk);
    add(&RegistryChecks::findFileAssociations, u"invalid_file_assoc"_s,
        tr("Invalid File Associations"), tr("File associations pointing to missing programs"),
        QT_TR_NOOP("Scanning invalid file associations..."), LowRisk);
    add(&RegistryChecks::findCom, u"invalid_com"_s, tr("Invalid COM/ActiveX"),
        tr("Invalid COM components and ActiveX controls"),
        QT_TR_NOOP("Scanning invalid COM components..."), MediumRisk);
    add(&RegistryChecks::findFonts, u"invalid_fonts"_s, tr("Invalid Font References"),
        tr("Registry entries pointing to non-existent font files"),
        QT_TR_NOOP("Scanning invalid font references..."), LowRisk);
    add(&RegistryChecks::findStartup, u"invalid_startup"_s, tr("Invalid Startup Items"),
        tr("Startup items pointing to non-existent programs"),
        QT_TR_NOOP("Scanning invalid startup items..."), MediumRisk);
    add(&RegistryChecks::findSharedDlls, u"invalid_shared_dll"_s, tr("Invalid Shared DLLs"),
        tr("References to non-existent shared DLL files"),
        QT_TR_NOOP("Scanning invalid shared DLLs..."), MediumRisk, false);
    add(&RegistryChecks::findMuiCache, u"mui_cache"_s, tr("MUI Cache"),
        tr("Application MUI cache data"), QT_TR_NOOP("Scanning MUI cache..."), LowRisk);
}

RegistryCleaner::~RegistryCleaner()
{
    stopAndWait();
}

QStringList RegistryCleaner::categoryIds() const
{
    QStringList ids;
    for (const Category &category : m_categories)
        ids.append(category.id);
    return ids;
}

bool RegistryCleaner::pathExists(const QString &text)
{
    return PathCheck(Registry()).exists(text);
}

void RegistryCleaner::doScan()
{
    Logger::instance().info(u"Starting registry scan..."_s);
    const Registry registry;
    RegistryChecks checks(registry, watch());
    const int count = static_cast<int>(m_categories.size());
    for (int i = 0; i < count; ++i) {
        Q_EMIT scanProgress(i + 1, count, tr(m_categories.at(i).progressText));
        if (!isStopRequested())
            runCheck(m_categories.at(i), checks);
    }
    readFailures().add(registry.readFailures());
    readFailures().add(checks.readFailures());
    readFailures().add(platform::folderFailures());
    if (isStopRequested()) {
        setState(State::Cancelled);
        return;
    }
    result().scanTime = QDateTime::currentDateTime();
    Logger::instance().info(u"Registry scan finished. Found %1 items"_s.arg(result().totalCount()));
}

void RegistryCleaner::runCheck(const Category &category, RegistryChecks &checks)
{
    CleanCategory found(category.id, category.name, category.description);
    found.checked = category.checked;
    found.riskLevel = category.level;
    found.items = (checks.*category.check)();
    if (!found.items.isEmpty() && !isStopRequested())
        result().categories.append(std::move(found));
}

void RegistryCleaner::doClean()
{
    Logger::instance().info(u"Starting registry clean..."_s);
    Registry registry;
    const QSet<Place> currentPlaces = findCurrentPlaces(registry);
    const auto hasChanged = [&currentPlaces](const CleanItem &item) {
        return item.registryEntry != RegistryEntry::Unknown
            && !currentPlaces.contains(Place::of(item));
    };
    // What cannot be read may be as it was shown, or not.
    const QString changed = readFailures().isEmpty()
        ? tr("It has changed since the scan")
        : tr("It could not be read again before the clean");
    ScanResult toRemove = selection();
    for (CleanCategory &category : toRemove.categories)
        category.items.removeIf(hasChanged);
    backUp(toRemove, registry);

    QList<UnsavedRemoval> removals;
    QSet<Place> removedPlaces;
    CleanTotals totals = cleanSelection([&](const CleanItem &item) -> Removal {
        const Place place = Place::of(item);
        if (removedPlaces.contains(place)) // a class may be listed twice
            return {Removal::NotCounted, 0, {}};
        const QString entry = item.registryRoot + u'\\' + item.registryKey;
        QString reason = changed;
        if (hasChanged(item) || !removeEntry(registry, item, reason))
            return {Removal::Failed, 0, {entry, reason}};
        removals.append({place.hive, entry});
        removedPlaces.insert(place);
        return {};
    });
    totals.cleaned = saveChanges(registry, removals);
    readFailures().add(registry.readFailures());
    reportClean(totals);
    if (!totals.isStopped)
        Logger::instance().info(u"Registry clean finished. Cleaned %1 items"_s.arg(totals.cleaned));
}

// An entry that has changed since the scan is not the one that was shown, so it must stay.
QSet<RegistryCleaner::Place> RegistryCleaner::findCurrentPlaces(const Registry &registry)
{
    QSet<Place> found;
    RegistryChecks checks(registry, watch());
    const QList<CleanCategory> &chosen = selection().categories;
    for (const Category &category : std::as_const(m_categories)) {
        const auto isSame = [&category](const CleanCategory &other) {
            return other.id == category.id;
        };
        if (std::none_of(chosen.begin(), chosen.end(), isSame))
            continue;
        const QList<CleanItem> items = (checks.*category.check)();
        for (const CleanItem &item : items)
            found.insert(Place::of(item));
    }
    readFailures().add(registry.readFailures());
    readFailures().add(checks.readFailures());
    return found;
}

void RegistryCleaner::backUp(const ScanResult &toRemove, const Registry &registry)
{
    m_backupError.reset();
    if (m_backupPath.isEmpty()) {
        Logger::instance().info(u"Registry backup skipped (no backup path specified)"_s);
        return;
    }
    if (toRemove.checkedCount() == 0 && QFileInfo::exists(m_backupPath)) {
        // An existing backup is worth more than an empty one.
        Logger::instance().info(u"Registry backup skipped (nothing to remove)"_s);
        return;
    }
    Logger::instance().info("Creating registry backup to: "_L1 + m_backupPath);
    const QString text = RegistryBackup::text(toRemove, registry, QDateTime::currentDateTime());
    if (isStopRequested()) {
        // Nothing will be removed, so the backup of an earlier clean must not be replaced.
        Logger::instance().info(u"Registry backup skipped (cancelled)"_s);
        return;
    }
    QString error;
    if (RegistryBackup::write(m_backupPath, text, error)) {
        Logger::instance().info("Registry backup created: "_L1 + m_backupPath);
        Logger::instance().info(u"Registry backup created successfully"_s);
        return;
    }
    m_backupError = error;
    Logger::instance().error(u"Failed to create registry backup"_s);
    Logger::instance().error(u"%1 - %2"_s.arg(m_backupPath, error));
}

bool RegistryCleaner::removeEntry(Registry &registry, const CleanItem &item, QString &reason)
{
    const auto [hive, path] = Place::of(item);
    const auto deleteKey = [&registry, &reason, hive = hive, &path = path] {
        const bool isDone = registry.deleteTree(hive, path) || registry.deleteKey(hive, path);
        if (!isDone)
            reason = registry.errorString();
        return isDone;
    };
    if (!item.registryKey.contains(u'\\')) {
        if (deleteKey())
            return true;
        Logger::instance().error(
            u"Failed to delete registry key: %1\\%2"_s.arg(item.registryRoot, item.registryKey));
        return false;
    }
    const qsizetype separator = path.lastIndexOf(u'\\');
    const QString parent = path.left(separator);
    const bool isListed = RegistryChecks::isBelowValueList(path);
    if (path.isEmpty() || (isListed && !RegistryChecks::isValueList(parent))) {
        reason = tr("Its name cannot be told from a path");
        return false;
    }
    if (item.registryEntry != RegistryEntry::Key) {
        if (registry.deleteValue(hive, parent, path.mid(separator + 1)))
            return true;
        reason = registry.errorString();
    }
    return !isListed && item.registryEntry != RegistryEntry::Value && deleteKey();
}

int RegistryCleaner::saveChanges(Registry &registry, const QList<UnsavedRemoval> &removals)
{
    if (removals.isEmpty())
        return 0;
    if (!registry.save())
        Logger::instance().error("Failed to save the registry: "_L1 + registry.errorString());
    int count = 0;
    for (const UnsavedRemoval &removal : removals) {
        if (registry.isSaved(removal.hive))
            ++count;
        else
            addFailure({removal.entry, registry.errorString()});
    }
    return count;
}
