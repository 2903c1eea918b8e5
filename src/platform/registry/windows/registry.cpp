#include "registry_p.h"

#include <QSet>

#include <array>
#include <utility>
#include <vector>

#include <windows.h>

namespace platform {

namespace {

HKEY rootOf(Hive hive)
{
    switch (hive) {
    case Hive::LocalMachine:
        return HKEY_LOCAL_MACHINE;
    case Hive::CurrentUser:
        return HKEY_CURRENT_USER;
    case Hive::ClassesRoot: // is merged from the other two
        break;
    }
    return nullptr;
}

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

constexpr qsizetype longestValueName = 16384; ///< characters, its NUL included
constexpr qsizetype longestKeyName = 256;
constexpr int maxAttempts = 3; ///< to read a value that grows meanwhile

/// Opens a key and closes it in the destructor. It is false when the key cannot be opened with the
/// requested access; status then tells why. Lives on the stack of one call.
class OpenKey final
{
    Q_DISABLE_COPY_MOVE(OpenKey)
public:
    OpenKey(Hive hive, const QString &key, REGSAM access, DWORD options = 0)
    {
        // For the system a name ends at a NUL, so it would open another key.
        status = key.contains(QChar(u'\0'))
            ? ERROR_INVALID_NAME
            : ::RegOpenKeyExW(rootOf(hive), wide(key), options, access, &handle);
    }
    ~OpenKey()
    {
        if (handle)
            ::RegCloseKey(handle);
    }
    [[nodiscard]] explicit operator bool() const { return handle; }

    HKEY handle = nullptr;
    LSTATUS status = ERROR_SUCCESS;
};

// One step of an enumeration. Reads the value's name and type, and its data if @p data is not null.
LSTATUS enumerate(HKEY key, DWORD index, std::vector<wchar_t> &name, std::vector<BYTE> *data,
                  RegistryValue &value)
{
    auto nameLength = static_cast<DWORD>(name.size());
    DWORD dataSize = data ? static_cast<DWORD>(data->size()) : 0;
    DWORD type = 0;
    const LSTATUS status =
        ::RegEnumValueW(key, index, name.data(), &nameLength, nullptr, &type,
                        data ? data->data() : nullptr, data ? &dataSize : nullptr);
    if (status == ERROR_SUCCESS) {
        value.name = QString::fromWCharArray(name.data(), static_cast<qsizetype>(nameLength));
        value.type = type;
        if (data)
            value.data = QByteArray(reinterpret_cast<const char *>(data->data()),
                                    static_cast<qsizetype>(dataSize));
    }
    return status;
}

// Whether the status means that there is no such key or value.
bool meansMissing(LSTATUS status)
{
    switch (status) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_KEY_DELETED:
    case ERROR_INVALID_NAME: // a name that no key can have
    case ERROR_BAD_PATHNAME:
        return true;
    default:
        return false;
    }
}

// A call follows a link unless it says otherwise.
bool isLink(Hive hive, const QString &key)
{
    const OpenKey openKey(hive, key, KEY_QUERY_VALUE, REG_OPTION_OPEN_LINK);
    DWORD type = REG_NONE;
    return openKey
        && ::RegQueryValueExW(openKey.handle, L"SymbolicLinkValue", nullptr, &type, nullptr,
                              nullptr)
        == ERROR_SUCCESS
        && type == REG_LINK;
}

// The first list in its order, followed by the names that only the second list has.
QStringList merged(QStringList names, const QStringList &more)
{
    QSet<QString> seen;
    for (const QString &name : std::as_const(names))
        seen.insert(name.toCaseFolded());
    for (const QString &name : more) {
        if (!seen.contains(name.toCaseFolded()))
            names.append(name);
    }
    return names;
}

} // namespace

/// The last error, and the checks before each change.
class Registry::Private
{
public:
    bool check(LSTATUS status)
    {
        if (status != ERROR_SUCCESS)
            error = qt_error_string(static_cast<int>(status));
        return status == ERROR_SUCCESS;
    }
    // Whether a change of this key may be passed to the system.
    bool isAllowed(Hive hive, const QString &key)
    {
        if (hive == Hive::ClassesRoot) {
            error = mergedClassesError();
            return false;
        }
        if (!Registry::isKeyPath(key) || key.contains(QChar(u'\0')))
            return check(ERROR_INVALID_NAME);
        return !isLink(hive, key) || check(ERROR_ACCESS_DENIED);
    }

    // Whether a reading of the key was successful. A missing key or value is no failure.
    bool checkRead(LSTATUS status, Hive hive, const QString &key)
    {
        if (status != ERROR_SUCCESS && !meansMissing(status))
            readFailures.add(hiveName(hive) + u'\\' + key,
                             qt_error_string(static_cast<int>(status)));
        return status == ERROR_SUCCESS;
    }
    // Whether an enumeration is over. A value that is too long for the buffer is skipped.
    bool endsEnumeration(LSTATUS status, Hive hive, const QString &key)
    {
        if (status == ERROR_MORE_DATA)
            return false;
        if (status != ERROR_NO_MORE_ITEMS)
            checkRead(status, hive, key);
        return true;
    }

    QString error;
    ReadFailures readFailures;
};

Registry::Registry()
    : d(std::make_unique<Private>())
{
}

Registry::~Registry() = default;
Registry::Registry(Registry &&other) noexcept = default;
Registry &Registry::operator=(Registry &&other) noexcept = default;

bool Registry::hasKey(Hive hive, const QString &key) const
{
    if (hive == Hive::ClassesRoot)
        return hasKey(Hive::CurrentUser, classPath(key))
            || hasKey(Hive::LocalMachine, classPath(key));
    return d->checkRead(OpenKey(hive, key, KEY_READ).status, hive, key);
}

QStringList Registry::subkeys(Hive hive, const QString &key) const
{
    if (hive == Hive::ClassesRoot)
        return merged(subkeys(Hive::LocalMachine, classPath(key)),
                      subkeys(Hive::CurrentUser, classPath(key)));
    QStringList names;
    const OpenKey openKey(hive, key, KEY_READ);
    if (!d->checkRead(openKey.status, hive, key))
        return names;
    std::array<wchar_t, longestKeyName> name{};
    for (DWORD index = 0;; ++index) {
        auto length = static_cast<DWORD>(name.size());
        const LSTATUS status = ::RegEnumKeyExW(openKey.handle, index, name.data(), &length, nullptr,
                                               nullptr, nullptr, nullptr);
        if (status == ERROR_NO_MORE_ITEMS || !d->checkRead(status, hive, key))
            return names;
        names.append(QString::fromWCharArray(name.data(), static_cast<qsizetype>(length)));
    }
}

QStringList Registry::valueNames(Hive hive, const QString &key) const
{
    if (hive == Hive::ClassesRoot)
        return merged(valueNames(Hive::CurrentUser, classPath(key)),
                      valueNames(Hive::LocalMachine, classPath(key)));
    QStringList names;
    const OpenKey openKey(hive, key, KEY_READ);
    if (!d->checkRead(openKey.status, hive, key))
        return names;
    std::vector<wchar_t> name(longestValueName);
    for (DWORD index = 0;; ++index) {
        RegistryValue value;
        const LSTATUS status = enumerate(openKey.handle, index, name, nullptr, value);
        if (status == ERROR_SUCCESS)
            names.append(value.name);
        else if (d->endsEnumeration(status, hive, key))
            return names;
    }
}

std::optional<RegistryValue> Registry::value(Hive hive, const QString &key,
                                             const QString &name) const
{
    if (hive == Hive::ClassesRoot) {
        const std::optional<RegistryValue> own = value(Hive::CurrentUser, classPath(key), name);
        return own ? own : value(Hive::LocalMachine, classPath(key), name);
    }
    const OpenKey openKey(hive, key, KEY_READ);
    if (!d->checkRead(openKey.status, hive, key) || name.contains(QChar(u'\0')))
        return std::nullopt;
    RegistryValue value{name, RegistryNone, {}};
    DWORD type = 0;
    DWORD size = 0;
    LSTATUS status = ::RegQueryValueExW(openKey.handle, wide(name), nullptr, &type, nullptr, &size);
    // The value may grow after its size was read.
    for (int attempt = 0; attempt < maxAttempts; ++attempt) {
        if (status != ERROR_SUCCESS && status != ERROR_MORE_DATA)
            break;
        value.data.fill('\0', static_cast<qsizetype>(size));
        status = ::RegQueryValueExW(openKey.handle, wide(name), nullptr, &type,
                                    reinterpret_cast<BYTE *>(value.data.data()), &size);
        if (status == ERROR_SUCCESS)
            break;
    }
    if (!d->checkRead(status, hive, key))
        return std::nullopt;
    value.data.truncate(static_cast<qsizetype>(size));
    value.type = type;
    return value;
}

std::optional<QList<RegistryValue>> Registry::values(Hive hive, const QString &key,
                                                     qsizetype maximumSize) const
{
    if (hive == Hive::ClassesRoot) // no caller needs the values of both hives at once
        return std::nullopt;
    const OpenKey openKey(hive, key, KEY_READ);
    if (!d->checkRead(openKey.status, hive, key))
        return std::nullopt;
    QList<RegistryValue> all;
    std::vector<wchar_t> name(longestValueName);
    std::vector<BYTE> data(static_cast<size_t>(maximumSize));
    for (DWORD index = 0;; ++index) {
        RegistryValue value;
        const LSTATUS status = enumerate(openKey.handle, index, name, &data, value);
        if (status == ERROR_SUCCESS)
            all.append(value);
        else if (d->endsEnumeration(status, hive, key))
            return all;
    }
}

bool Registry::deleteTree(Hive hive, const QString &key)
{
    return d->isAllowed(hive, key) && d->check(::RegDeleteTreeW(rootOf(hive), wide(key)));
}

bool Registry::deleteKey(Hive hive, const QString &key)
{
    return d->isAllowed(hive, key) && d->check(::RegDeleteKeyW(rootOf(hive), wide(key)));
}

bool Registry::deleteValue(Hive hive, const QString &key, const QString &name)
{
    if (!d->isAllowed(hive, key))
        return false;
    if (name.contains(QChar(u'\0')))
        return d->check(ERROR_INVALID_NAME);
    const OpenKey openKey(hive, key, KEY_SET_VALUE);
    return d->check(openKey ? ::RegDeleteValueW(openKey.handle, wide(name)) : openKey.status);
}

bool Registry::createKey(Hive hive, const QString &key)
{
    if (!d->isAllowed(hive, key))
        return false;
    HKEY handle = nullptr;
    const LSTATUS status = ::RegCreateKeyExW(rootOf(hive), wide(key), 0, nullptr, 0, KEY_READ,
                                             nullptr, &handle, nullptr);
    if (status == ERROR_SUCCESS)
        ::RegCloseKey(handle);
    return d->check(status);
}

bool Registry::setValue(Hive hive, const QString &key, const RegistryValue &value)
{
    if (!d->isAllowed(hive, key))
        return false;
    if (value.name.contains(QChar(u'\0')))
        return d->check(ERROR_INVALID_NAME);
    const OpenKey openKey(hive, key, KEY_SET_VALUE);
    if (!openKey)
        return d->check(openKey.status);
    return d->check(::RegSetValueExW(openKey.handle, wide(value.name), 0, value.type,
                                     reinterpret_cast<const BYTE *>(value.data.constData()),
                                     static_cast<DWORD>(value.data.size())));
}

bool Registry::save()
{
    return true;
}

bool Registry::isSaved(Hive) const
{
    return true;
}

QString Registry::errorString() const
{
    return d->error;
}

const ReadFailures &Registry::readFailures() const
{
    return d->readFailures;
}

// The system locks its files. Wine's server does not, and would overwrite a file that was put
// there.
bool isRegistryFile(const QString &path)
{
    const DWORD attributes = ::GetFileAttributesW(reinterpret_cast<const wchar_t *>(path.utf16()));
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0
        && beginsAsRegistryFile(path);
}

} // namespace platform
