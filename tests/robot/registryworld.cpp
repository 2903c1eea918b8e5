#include "registryworld.h"

#include "actionlog.h"
#include "testhome.h"

#include <QDir>
#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString machine = u"HKEY_LOCAL_MACHINE"_s;
const QString user = u"HKEY_CURRENT_USER"_s;
const QString version = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\"_s;
const QString fonts = u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Fonts"_s;
const QString muiCache =
    u"SOFTWARE\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\Shell\\MuiCache"_s;
const QString classes = u"SOFTWARE\\Classes"_s;
const QString programTree = u"prefix/drive_c/Apps/"_s;
const QString missing = u"C:\\Gone\\program.exe"_s;

/// Whether @p path is below a key whose values a scan lists one by one. Such a key and the keys
/// below it are never removed.
bool isBelowValueList(const QString &path)
{
    static const QStringList lists{fonts, version + "Run"_L1, version + "RunOnce"_L1,
                                   version + "SharedDLLs"_L1, muiCache};
    return std::any_of(lists.begin(), lists.end(), [&path](const QString &list) {
        return path.mid(5).startsWith(list.toLower() + u'\\');
    });
}

} // namespace

const QString RegistryWorld::userSuffix = u" (user)"_s;

RegistryWorld::RegistryWorld(const TestHome &home)
    : m_store(home)
{
    const QString folder = home.folder(programTree);
#ifdef Q_OS_WIN
    m_programFolder = QDir::toNativeSeparators(folder);
#else
    Q_UNUSED(folder)
    m_programFolder = u"C:\\Apps"_s;
#endif
    plan();
    planPrograms(home);
    refill();
    acceptState();
}

void RegistryWorld::add(const QString &hive, const QString &key, const QString &name,
                        const QString &text, const QString &item)
{
    m_entries.append({hive, key, name, text, item});
}

void RegistryWorld::plan()
{
    const QString present = m_programFolder + "\\There\\app.exe"_L1;
    const QStringList odd{u"plain"_s,           u"文字 🎉"_s,
                          u"100% %1 &amp;"_s,   QString(150, u'x') + u" long"_s,
                          u"<b>bold</b>"_s,     u"per cent %SystemRoot%"_s,
                          u"quoted \"name\""_s, u"  blanks  "_s};
    for (int i = 0; i < odd.size(); ++i) {
        const QString &name = odd.at(i);
        QString key = version + "App Paths\\"_L1 + name + ".exe"_L1;
        add(machine, key, {}, missing, machine + u'\\' + key);
        add(machine, key, u"Path"_s, u"C:\\Gone"_s);
        key = version + "Uninstall\\Gone "_L1 + name;
        add(machine, key, u"DisplayName"_s, u"Product "_s + name, machine + u'\\' + key);
        add(machine, key, u"InstallLocation"_s, u"C:\\Gone\\"_s + QString::number(i));
        add(machine, key + "\\below"_L1, u"value"_s, u"goes too"_s);
        add(machine, fonts, name + " (TrueType)"_L1, u"gone%1.ttf"_s.arg(i),
            machine + u'\\' + fonts + u'\\' + name + " (TrueType)"_L1);
        const QString run = version + "Run"_L1;
        add(user, run, u"gone "_s + name, missing + " -x"_L1,
            "HKCU\\"_L1 + run + "\\gone "_L1 + name);
    }
    for (int i = 0; i < 13; ++i) {
        const QString id = u"CLSID\\{00000000-0000-0000-0000-%1}"_s.arg(i, 12, 10, QChar(u'0'));
        const QString key = classes + u'\\' + id;
        add(machine, key, {}, u"Component %1"_s.arg(i), u"HKEY_CLASSES_ROOT\\"_s + id);
        add(machine, key + "\\InprocServer32"_L1, {}, u"C:\\Gone\\%1.dll"_s.arg(i));
    }
    for (int i = 0; i < 3; ++i) {
        const QString type = u".gone%1"_s.arg(i);
        add(machine, classes + u'\\' + type, {}, u"gonefile%1"_s.arg(i),
            u"HKEY_CLASSES_ROOT\\"_s + type);
        add(machine, classes + u"\\gonefile%1\\shell\\open\\command"_s.arg(i), {},
            missing + " %1"_L1);
    }
    planClassesInBothHives();
    add(machine, version + "RunOnce"_L1, u"once"_s, missing,
        "HKLM\\"_L1 + version + "RunOnce\\once"_L1);
    // A value name that is a path looks like keys: such an entry is not removed.
    const QString dlls = version + "SharedDLLs"_L1;
    add(machine, dlls, u"C:\\Gone\\shared.dll"_s, u"1"_s,
        machine + u'\\' + dlls + "\\C:\\Gone\\shared.dll"_L1);
    add(machine, dlls, u"shared.dll"_s, u"1"_s, machine + u'\\' + dlls + "\\shared.dll"_L1);
    add(user, muiCache, u"gone.exe.FriendlyAppName"_s, u"Gone"_s,
        user + u'\\' + muiCache + "\\gone.exe.FriendlyAppName"_L1);
    add(user, muiCache, missing + ".FriendlyAppName"_L1, u"Gone"_s,
        user + u'\\' + muiCache + u'\\' + missing + ".FriendlyAppName"_L1);

    // Valid entries of the same kinds.
    add(machine, version + "App Paths\\there.exe"_L1, {}, present);
    add(machine, version + "Run"_L1, u"there"_s, present + " -x"_L1);
    add(user, version + "RunOnce"_L1, u"there once"_s, u'"' + present + u'"');
    add(machine, fonts, u"There (TrueType)"_s, present);
    add(machine, dlls, present, u"1"_s);
    add(user, muiCache, present + ".FriendlyAppName"_L1, u"There"_s);
    add(machine, classes + "\\.there"_L1, {}, u"therefile"_s);
    add(machine, classes + "\\therefile\\shell\\open\\command"_L1, {}, present + " %1"_L1);
    add(machine, classes + "\\.txt"_L1, {}, u"gonefile0"_s);
    add(machine, classes + "\\CLSID\\{there}\\InprocServer32"_L1, {}, present);
    add(user, u"Software\\Product"_s, u"setting"_s, u"kept"_s);
}

// Classes that are in both hives: only the invalid one of the two may be removed.
void RegistryWorld::planClassesInBothHives()
{
    const QString present = m_programFolder + "\\There\\app.exe"_L1;
    const QString merged = u"HKEY_CLASSES_ROOT"_s;
    const auto key = [](const QString &path) { return classes + u'\\' + path; };
    const QString first = u"CLSID\\{twin 1}"_s;
    add(user, key(first + "\\InprocServer32"_L1), {}, u"C:\\Gone\\twin.dll"_s,
        merged + userSuffix + u'\\' + first);
    add(machine, key(first + "\\InprocServer32"_L1), {}, present);
    const QString second = u"CLSID\\{twin 2}"_s;
    add(user, key(second + "\\InprocServer32"_L1), {}, u"C:\\Gone\\twin.dll"_s,
        merged + userSuffix + u'\\' + second);
    add(machine, key(second + "\\LocalServer32"_L1), {}, u"C:\\Gone\\twin.exe"_s,
        merged + u'\\' + second);
    add(user, key(u".twin"_s), {}, u"gonefile0"_s, merged + userSuffix + "\\.twin"_L1);
    add(machine, key(u".twin"_s), {}, u"therefile"_s);
}

void RegistryWorld::planPrograms(const TestHome &home)
{
    const QStringList names{u"Archiver"_s,
                            u"Photo Studio 2026"_s,
                            u"音乐播放器 🎵"_s,
                            QString(120, u'n') + " long name"_L1,
                            u"100% &amp; <i>more</i>"_s,
                            u"Player"_s,
                            u"player"_s};
    for (int i = 0; i < 27; ++i) {
        const QString name = i < names.size() ? names.at(i) : u"Program %1"_s.arg(i);
        const QString folder = u"%1/%2"_s.arg(
            i == 0 ? u"There"_s : QString::number(i),
            i % 5 == 4 ? u"a folder with a rather long name, for a path that is shortened/bin"_s
                       : QString());
        const QString local = QDir::cleanPath(home.folder(programTree + folder));
        QFile file(local + "/app.exe"_L1);
        expect(file.open(QIODevice::WriteOnly), [&] { return file.errorString(); });
        const QString path =
            m_programFolder + u'\\' + QDir::cleanPath(folder).replace(u'/', u'\\') + "\\app.exe"_L1;
        const QString key = version + "Uninstall\\There "_L1 + QString::number(i);
        const QString hive = i % 2 == 0 ? user : machine;
        add(hive, key, u"DisplayName"_s, name);
        add(hive, key, u"DisplayIcon"_s, path + ",0"_L1);
        m_programs.append({name, path});
        if (i % 4 == 1)
            add(user, version + "Run"_L1, name, u'"' + path + u'"');
    }
}

bool RegistryWorld::has(const Entry &entry) const
{
    const RegistryState &now = state();
    const auto key = now.constFind(RegistryStore::folded(entry.hive, entry.key));
    return key != now.cend() && key->contains(entry.name.toLower());
}

void RegistryWorld::refill()
{
    const QString run = version + "Run"_L1;
    bool isComplete = true;
    for (const Entry &entry : std::as_const(m_entries)) {
        // After the start the user decides which valid programs start with the session.
        const bool isUserChoice = entry.item.isEmpty() && entry.key == run && !m_accepted.isEmpty();
        if (isUserChoice || has(entry))
            continue;
        m_store.add(entry.hive, entry.key, entry.name, entry.text);
        isComplete = false;
    }
    if (!isComplete)
        m_store.write();
}

RegistryState RegistryWorld::stateWithout(const RegistryState &before, const QStringList &entries)
{
    RegistryState after = before;
    for (const QString &entry : entries) {
        const QString root = entry.section(u'\\', 0, 0);
        const QString item = entry.section(u'\\', 1);
        const bool isUser = root == user || root == "HKCU"_L1 || root.endsWith(userSuffix);
        const bool isClass = root.startsWith("HKEY_CLASSES_ROOT"_L1);
        const QString path =
            RegistryStore::folded(isUser ? user : machine, isClass ? classes + u'\\' + item : item);
        const qsizetype separator = path.lastIndexOf(u'\\');
        if (const auto parent = after.find(path.first(separator));
            parent != after.end() && parent->remove(path.mid(separator + 1)) > 0)
            continue;
        if (isBelowValueList(path))
            continue;
        after.removeIf([&path](const RegistryState::iterator &key) {
            return key.key() == path || key.key().startsWith(path + u'\\');
        });
    }
    return after;
}

QStringList RegistryWorld::findLost(const RegistryState &before, const RegistryState &after)
{
    QStringList names;
    for (auto key = before.cbegin(); key != before.cend(); ++key) {
        const auto now = after.constFind(key.key());
        if (now == after.cend()) {
            names.append(key.key());
            continue;
        }
        for (auto value = key->cbegin(); value != key->cend(); ++value) {
            if (now->value(value.key()) != value.value() || !now->contains(value.key()))
                names.append(key.key() + u'\\' + value.key());
        }
    }
    return names;
}

QSet<QString> RegistryWorld::expectedItems() const
{
    QSet<QString> items;
    for (const Entry &entry : m_entries) {
        if (!entry.item.isEmpty() && has(entry))
            items.insert(entry.item);
    }
    return items;
}

QHash<QString, QString> RegistryWorld::startList() const
{
    QHash<QString, QString> list;
    const auto values = state().value(RegistryStore::folded(user, version + "Run"_L1));
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        const QString command = RegistryStore::textOf(value.value()).section(u'"', 1, 1);
        list.insert(command.toLower(), value.key());
    }
    return list;
}
