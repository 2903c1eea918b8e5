#include "startupmanager.h"

#include "entry.h"
#include "filewalk.h"
#include "folderlister.h"
#include "logger.h"
#include "registrykeys.h"
#include "registrysettings.h"
#include "rulefolders.h"
#include "windowspaths.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;
using platform::Hive;
using platform::Registry;

namespace {

// Whether the path begins with a drive or a share. Any other path would be resolved against this
// program's current folder.
bool isFullPath(const QString &windowsPath)
{
    return platform::isOnDrive(windowsPath) || windowsPath.startsWith("\\\\"_L1);
}

// Whether the file exists. If that cannot be determined, it is added to @p failures.
bool fileExists(const QString &windowsPath, platform::ReadFailures &failures)
{
    if (!isFullPath(windowsPath))
        return false;
    QString problem;
    const QString local = platform::locate(platform::localPath(windowsPath), {}, &problem);
    const platform::Entry entry = local.isEmpty() ? platform::Entry() : platform::inspect(local);
    if (problem.isEmpty())
        problem = entry.error;
    if (!problem.isEmpty())
        failures.add(windowsPath, problem);
    return entry.kind == platform::EntryKind::File;
}

// Parts of the system, which no user starts.
bool isSystemSoftware(const QString &name)
{
    static const std::array parts{"Microsoft Visual C++"_L1, "Microsoft .NET"_L1, "Update for"_L1,
                                  "Hotfix"_L1, "Security Update"_L1};
    return name.startsWith("Windows "_L1)
        || std::any_of(parts.begin(), parts.end(),
                       [&name](QLatin1StringView part) { return name.contains(part); });
}

bool isHelperProgram(const QString &fileName)
{
    static const std::array parts{"unins"_L1, "uninst"_L1, "remove"_L1,
                                  "setup"_L1, "update"_L1, "helper"_L1};
    const QString lower = fileName.toLower();
    return std::any_of(parts.begin(), parts.end(),
                       [&lower](QLatin1StringView part) { return lower.contains(part); });
}

QString normalisedName(const QString &name)
{
    QString letters;
    for (const QChar c : name) {
        if (c.unicode() < 0x80 && c.isLetterOrNumber())
            letters += c.toLower();
    }
    return letters;
}

// The path in a DisplayIcon value, without the icon's index and without quotes.
QString iconFile(const QString &displayIcon)
{
    QString path = displayIcon;
    if (const qsizetype comma = path.lastIndexOf(u','); comma > 0)
        path.truncate(comma);
    if (path.startsWith(u'"'))
        path.remove(0, 1);
    if (path.endsWith(u'"'))
        path.chop(1);
    return path;
}

// The same text for all spellings of a path. Known placeholders are replaced, slashes become
// backslashes, and letters become small.
QString normalisedPath(const QString &path)
{
    QString result = path;
    for (qsizetype begin = result.indexOf(u'%'); begin >= 0;
         begin = result.indexOf(u'%', begin + 1)) {
        const qsizetype end = result.indexOf(u'%', begin + 1);
        if (end < 0)
            break;
        const QString name = result.mid(begin + 1, end - begin - 1).toUpper();
        const std::optional<QString> value = platform::windowsVariable(name);
        if (value && !value->isEmpty())
            result.replace(begin, end - begin + 1, *value);
    }
    return result.replace(u'/', u'\\').toLower();
}

// Whether @p command starts the program, in any spelling. Without quotes the system tries each
// blank as the end of the program's path.
bool startsProgram(const QString &command, const QString &exePath)
{
    const QString program = normalisedPath(exePath);
    if (command.startsWith(u'"'))
        return normalisedPath(StartupManager::commandPath(command)) == program;
    const QString line = normalisedPath(command);
    return line == program || line.startsWith(program + u' ') || line.startsWith(program + u'\t');
}

// The programs directly in @p folder, sorted by name, each with @p prefix before its name.
QStringList listPrograms(const QString &folder, const QString &prefix,
                         platform::ReadFailures &failures)
{
    QStringList names;
    platform::WalkOptions options;
    options.nameFilters = QStringList{u"*.exe"_s};
    options.recursive = false;
    failures.add(platform::walkFiles(
        folder, options, [&](platform::WalkedFile &&file) { names.append(prefix + file.name); }));
    names.sort(Qt::CaseInsensitive);
    return names;
}

} // namespace

StartupManager::StartupManager(QObject *parent)
    : QObject(parent)
{
}

const QList<StartupApp> &StartupManager::apps()
{
    if (!m_isLoaded)
        loadInstalledApps();
    return m_apps;
}

void StartupManager::loadInstalledApps()
{
    m_apps.clear();
    m_readFailures.clear();
    m_entries.clear();
    m_isLoaded = true;
    (void)platform::folderFailures(); // of earlier work on this thread
    const Registry registry;
    readStartupTable(registry);
    for (const auto &[hive, root] : registrykeys::uninstallLists()) {
        for (const QString &id : registry.subkeys(hive, root))
            readUninstallKey(registry, hive, root, id);
    }
    const auto startupCount = std::count_if(m_apps.cbegin(), m_apps.cend(),
                                            [](const StartupApp &app) { return app.isStartup; });
    m_readFailures.add(registry.readFailures());
    m_readFailures.add(platform::folderFailures());
    Logger::instance().info(u"Found %1 installed apps, %2 in startup"_s.arg(
        QString::number(m_apps.size()), QString::number(startupCount)));
    Logger::instance().warnings(m_readFailures.lines());
}

bool StartupManager::readStartupTable(const Registry &registry)
{
    QList<Entry> entries;
    for (const QString &name : registry.valueNames(Hive::CurrentUser, registrykeys::userRun)) {
        const QString command =
            registry.text(Hive::CurrentUser, registrykeys::userRun, name).trimmed();
        const QString path = commandPath(command);
        entries.append({name, path, command});
    }
    m_isStartupListRead = registry.readFailures().isEmpty();
    m_readFailures.add(registry.readFailures());
    if (m_isStartupListRead)
        m_entries = entries;
    else
        m_error = registry.readFailures().lines().join(u'\n');
    return m_isStartupListRead;
}

QList<StartupManager::Entry> StartupManager::entriesOf(const QString &exePath) const
{
    QList<Entry> entries;
    for (const Entry &entry : m_entries) {
        if (entry.exePath.compare(exePath, Qt::CaseInsensitive) == 0
            || startsProgram(entry.command, exePath))
            entries.append(entry);
    }
    return entries;
}

QString StartupManager::commandPath(const QString &command)
{
    if (command.startsWith(u'"')) {
        const qsizetype end = command.indexOf(u'"', 1);
        return end < 0 ? command : command.mid(1, end - 1);
    }
    const qsizetype blank = command.indexOf(u' ');
    platform::ReadFailures ignored; // the command may have arguments, so it may be no path
    return blank > 0 && !fileExists(command, ignored) ? command.first(blank) : command;
}

void StartupManager::readUninstallKey(const Registry &registry, Hive hive, const QString &root,
                                      const QString &id)
{
    const QString key = root + u'\\' + id;
    const auto text = [&](const QString &name) { return registry.text(hive, key, name); };
    StartupApp app;
    app.id = id;
    app.name = text(u"DisplayName"_s);
    if (app.name.isEmpty() || text(u"SystemComponent"_s).toInt() == 1
        || !text(u"ParentDisplayName"_s).isEmpty() || isSystemSoftware(app.name))
        return;
    app.iconPath = text(u"DisplayIcon"_s);
    app.publisher = text(u"Publisher"_s);
    const QString icon = iconFile(app.iconPath);
    app.exePath = icon.endsWith(".exe"_L1, Qt::CaseInsensitive) && fileExists(icon, m_readFailures)
        ? icon
        : findExecutable(text(u"InstallLocation"_s), app.name, m_readFailures);
    if (app.exePath.isEmpty())
        return;
    const bool isKnown =
        std::any_of(m_apps.cbegin(), m_apps.cend(), [&app](const StartupApp &other) {
            return other.exePath.compare(app.exePath, Qt::CaseInsensitive) == 0;
        });
    if (isKnown)
        return;
    app.isStartup = !entriesOf(app.exePath).isEmpty();
    m_apps.append(app);
}

QString StartupManager::findExecutable(const QString &folder, const QString &name,
                                       platform::ReadFailures &failures)
{
    if (!isFullPath(folder))
        return {};
    QString problem;
    const QString local = platform::locate(platform::localPath(folder), {}, &problem);
    if (!problem.isEmpty())
        failures.add(folder, problem);
    if (local.isEmpty() || !QFileInfo(local).isDir())
        return {};
    // Only one level deep: an install folder may be a whole drive or a share.
    QStringList programs = listPrograms(local, {}, failures);
    QStringList subfolders;
    const platform::FolderListing listing = platform::FolderLister().list(local);
    if (!listing.error.isEmpty())
        failures.add(local, listing.error);
    for (const platform::ListedEntry &entry : listing.entries) {
        if (entry.kind == platform::ListedKind::Folder && !entry.isHidden)
            subfolders.append(entry.name);
    }
    subfolders.sort(Qt::CaseInsensitive);
    for (const QString &subfolder : std::as_const(subfolders))
        programs +=
            listPrograms(platform::joinedPath(local, subfolder), subfolder + u'\\', failures);
    programs.removeIf([](const QString &program) {
        return isHelperProgram(program.mid(program.lastIndexOf(u'\\') + 1));
    });
    if (programs.isEmpty())
        return {};
    const QString product = normalisedName(name);
    const auto hasSimilarName = [&product](const QString &program) {
        const QString file = program.mid(program.lastIndexOf(u'\\') + 1);
        const QString base = file.first(file.indexOf(u'.')).toLower();
        return product.contains(base) || base.contains(product);
    };
    const auto best = std::find_if(programs.cbegin(), programs.cend(), hasSimilarName);
    QString root = folder;
    while (root.endsWith(u'\\') || root.endsWith(u'/'))
        root.chop(1);
    return root + u'\\' + (best == programs.cend() ? programs.constFirst() : *best);
}

bool StartupManager::addToStartup(const QString &name, const QString &exePath)
{
    const QString command = u'"' + exePath + u'"';
    bool isDone = readStartupTable(Registry()); // other programs change the list too
    if (isDone) {
        logCommands({name}, u"Startup command of %1 before it was replaced: %2"_s);
        isDone = platform::registrysettings::setText(Hive::CurrentUser, registrykeys::userRun, name,
                                                     command, m_error);
    }
    if (isDone)
        Logger::instance().info(u"Added to startup: %1"_s.arg(name));
    else
        Logger::instance().error(u"Failed to add startup: %1"_s.arg(name));
    updateStates();
    return isDone;
}

bool StartupManager::removeFromStartup(const QString &name)
{
    return readStartupTable(Registry()) ? removeEntries({name}) : failToRemove(name);
}

bool StartupManager::setStartup(const StartupApp &app, bool enable)
{
    if (enable)
        return addToStartup(app.name, app.exePath);
    if (!readStartupTable(Registry()))
        return failToRemove(app.name);
    QStringList names;
    for (const Entry &entry : entriesOf(app.exePath))
        names.append(entry.valueName);
    return removeEntries(names.isEmpty() ? QStringList{app.name} : names);
}

bool StartupManager::failToRemove(const QString &name)
{
    Logger::instance().error(u"Failed to remove startup: %1"_s.arg(name));
    return false;
}

bool StartupManager::removeEntries(const QStringList &valueNames)
{
    logCommands(valueNames, u"Startup command of %1 before it was removed: %2"_s);
    const bool isDone = platform::registrysettings::remove(Hive::CurrentUser, registrykeys::userRun,
                                                           valueNames, m_error);
    const QList<Entry> before = m_entries;
    updateStates();
    const auto has = [](const QList<Entry> &entries, const QString &name) {
        return std::any_of(entries.cbegin(), entries.cend(), [&name](const Entry &entry) {
            return entry.valueName.compare(name, Qt::CaseInsensitive) == 0;
        });
    };
    for (const QString &name : valueNames) {
        if (isDone || (has(before, name) && !has(m_entries, name)))
            Logger::instance().info(u"Removed from startup: %1"_s.arg(name));
        else
            failToRemove(name);
    }
    return isDone;
}

void StartupManager::logCommands(const QStringList &valueNames, const QString &line) const
{
    for (const Entry &entry : m_entries) {
        if (valueNames.contains(entry.valueName, Qt::CaseInsensitive))
            Logger::instance().info(line.arg(entry.valueName, entry.command));
    }
}

void StartupManager::updateStates()
{
    const QString error = m_error; // of the change
    if (!readStartupTable(Registry())) {
        Logger::instance().warning(m_error);
        m_error = error;
        return;
    }
    for (StartupApp &app : m_apps)
        app.isStartup = !entriesOf(app.exePath).isEmpty();
}
