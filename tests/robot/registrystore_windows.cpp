#include "registrystore.h"

#include "actionlog.h"
#include "testhome.h"

#include <QDir>
#include <QList>
#include <QStringList>

#include <array>

#include <windows.h>

using namespace Qt::StringLiterals;

namespace {

const QString machine = u"HKEY_LOCAL_MACHINE"_s;
const QString user = u"HKEY_CURRENT_USER"_s;
const QString ownKey = u"Software\\Sweepwise robot"_s;

const wchar_t *toWide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

HKEY createKey(HKEY parent, const QString &key)
{
    HKEY handle = nullptr;
    const LSTATUS status = ::RegCreateKeyExW(parent, toWide(key), 0, nullptr, 0, KEY_ALL_ACCESS,
                                             nullptr, &handle, nullptr);
    expect(status == ERROR_SUCCESS, [&] { return u"%1 cannot be made"_s.arg(key); });
    return handle;
}

// Whether the system and the toolkit store their own data in this key.
bool isSystemKey(const QString &key)
{
    static const QStringList systemKeys{
        u"hkcu\\software\\norvak"_s,
        u"hkcu\\software\\qtproject"_s,
        u"hkcu\\software\\wine"_s,
        u"hkcu\\software\\microsoft\\windows\\currentversion\\explorer"_s,
        u"hklm\\software\\microsoft\\windows\\currentversion\\explorer"_s,
        u"hklm\\software\\microsoft\\windows nt\\currentversion\\profilelist"_s,
    };
    return systemKeys.contains(key);
}

} // namespace

/// The store on Windows: keys of the live registry, watched for changes.
class RegistryStore::Private
{
public:
    /// One of the two replaced hives.
    struct Hive {
        QString name;
        HKEY key = nullptr;
        HANDLE change = nullptr; ///< signalled when anything in it has changed
    };
    /// A value that is not written yet.
    struct Added {
        QString hive;
        QString key;
        QString name;
        QString text;
    };

    void watch(const Hive &hive) const
    {
        ::RegNotifyChangeKeyValue(
            hive.key, TRUE, REG_NOTIFY_CHANGE_NAME | REG_NOTIFY_CHANGE_LAST_SET, hive.change, TRUE);
    }
    void read(HKEY handle, const QString &key);

    std::array<Hive, 2> hives;
    QList<Added> added;
    RegistryState state;
};

RegistryStore::RegistryStore(const TestHome &home)
    : d(std::make_unique<Private>())
{
    ::RegDeleteTreeW(HKEY_CURRENT_USER, toWide(ownKey)); // left by a run that crashed
    const std::array predefined{HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER};
    for (std::size_t i = 0; i < predefined.size(); ++i) {
        auto &hive = d->hives.at(i);
        hive.name = i == 0 ? machine : user;
        hive.key = createKey(HKEY_CURRENT_USER, ownKey + u'\\' + hive.name);
        hive.change = ::CreateEventW(nullptr, FALSE, TRUE, nullptr);
    }
    // The program reads the user's folders from the registry.
    const HKEY folders =
        createKey(d->hives.at(1).key,
                  u"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders"_s);
    for (const auto &[name, folder] :
         {std::pair(u"Local AppData"_s, u"Local"_s),
          std::pair(u"AppData"_s, u"User/AppData/Roaming"_s),
          std::pair(u"Desktop"_s, u"home/Desktop"_s), std::pair(u"Personal"_s, u"home"_s)}) {
        const QString path = QDir::toNativeSeparators(home.folder(folder));
        ::RegSetValueExW(folders, toWide(name), 0, REG_EXPAND_SZ,
                         reinterpret_cast<const BYTE *>(path.utf16()),
                         static_cast<DWORD>((path.size() + 1) * 2));
    }
    ::RegCloseKey(folders);
    for (std::size_t i = 0; i < predefined.size(); ++i) {
        expect(::RegOverridePredefKey(predefined.at(i), d->hives.at(i).key) == ERROR_SUCCESS,
               [] { return u"the registry cannot be replaced"_s; });
        d->watch(d->hives.at(i));
    }
    HKEY real = nullptr;
    expect(::RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"SYSTEM", 0, KEY_READ, &real) != ERROR_SUCCESS,
           [] { return u"the registry is still the system's"_s; });
}

RegistryStore::~RegistryStore()
{
    ::RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
    ::RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    for (const Private::Hive &hive : d->hives) {
        ::RegCloseKey(hive.key);
        ::CloseHandle(hive.change);
    }
    ::RegDeleteTreeW(HKEY_CURRENT_USER, toWide(ownKey));
}

void RegistryStore::add(const QString &hive, const QString &key, const QString &name,
                        const QString &text)
{
    d->added.append({hive, key, name, text});
}

void RegistryStore::write()
{
    for (const Private::Added &value : std::as_const(d->added)) {
        const HKEY key =
            createKey(value.hive == machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER, value.key);
        ::RegSetValueExW(key, toWide(value.name), 0, REG_SZ,
                         reinterpret_cast<const BYTE *>(value.text.utf16()),
                         static_cast<DWORD>((value.text.size() + 1) * 2));
        ::RegCloseKey(key);
    }
    d->added.clear();
}

const RegistryState &RegistryStore::state() const
{
    bool hasChanged = false;
    for (const Private::Hive &hive : d->hives)
        hasChanged = ::WaitForSingleObject(hive.change, 0) == WAIT_OBJECT_0 || hasChanged;
    if (!hasChanged)
        return d->state;
    d->state.clear();
    for (const Private::Hive &hive : d->hives) {
        d->watch(hive); // before reading: a change during the reading is then noticed
        d->read(hive.key, folded(hive.name, {}).chopped(1));
    }
    return d->state;
}

void RegistryStore::Private::read(HKEY handle, const QString &key)
{
    auto &values = state[key];
    std::array<wchar_t, 16'384> name{};
    std::array<BYTE, 16'384> data{};
    for (DWORD index = 0;; ++index) {
        DWORD length = name.size();
        DWORD size = data.size();
        DWORD type = 0;
        if (::RegEnumValueW(handle, index, name.data(), &length, nullptr, &type, data.data(), &size)
            != ERROR_SUCCESS)
            break;
        values.insert(QString::fromWCharArray(name.data(), static_cast<int>(length)).toLower(),
                      QString(reinterpret_cast<const QChar *>(data.data()), size / 2));
    }
    for (DWORD index = 0;; ++index) {
        DWORD length = name.size();
        if (::RegEnumKeyExW(handle, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr)
            != ERROR_SUCCESS)
            break;
        const QString below =
            key + u'\\' + QString::fromWCharArray(name.data(), static_cast<int>(length)).toLower();
        HKEY child = nullptr;
        if (isSystemKey(below)
            || ::RegOpenKeyExW(handle, name.data(), 0, KEY_READ, &child) != ERROR_SUCCESS)
            continue;
        read(child, below);
        ::RegCloseKey(child);
    }
}

QString RegistryStore::textOf(const QString &data)
{
    return data.endsWith(QChar::Null) ? data.chopped(1) : data;
}

QString RegistryStore::folded(const QString &hive, const QString &key)
{
    return (hive == user ? u"hkcu\\"_s : u"hklm\\"_s) + key.toLower();
}
