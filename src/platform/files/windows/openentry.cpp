#include "windows/openentry.h"

#include <QDir>
#include <QVarLengthArray>

#include <windows.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr QLatin1StringView extendedPrefix("\\\\?\\");
constexpr QLatin1StringView sharePrefix("\\\\?\\UNC\\");

// Tags of sockets, pipes and devices of the Linux subsystem. The compiler's headers lack some of
// them.
constexpr quint32 socketTag = 0x80000023;
constexpr quint32 pipeTag = 0x80000024;
constexpr quint32 characterDeviceTag = 0x80000025;
constexpr quint32 blockDeviceTag = 0x80000026;

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

bool isSameText(QStringView left, QStringView right, bool ignoreCase)
{
    return ::CompareStringOrdinal(reinterpret_cast<const wchar_t *>(left.utf16()),
                                  static_cast<int>(left.size()),
                                  reinterpret_cast<const wchar_t *>(right.utf16()),
                                  static_cast<int>(right.size()), ignoreCase ? TRUE : FALSE)
        == CSTR_EQUAL;
}

bool isDrive(QStringView path)
{
    return path.size() >= 3 && path.at(1) == u':' && path.at(2) == u'\\'
        && ((path.at(0) >= u'a' && path.at(0) <= u'z')
            || (path.at(0) >= u'A' && path.at(0) <= u'Z'));
}

QStringView withoutTrailingDotsAndBlanks(QStringView name)
{
    while (name.endsWith(u'.') || name.endsWith(u' '))
        name.chop(1);
    return name;
}

// Wine reports a name without the dots and blanks at its end, whatever was opened. On Windows the
// same answer would mean that a server had removed them and opened another file.
bool isWine()
{
    static const bool isRunning =
        ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    return isRunning;
}

/// A path split into its folder and its last name. Views of that path.
struct Split {
    QStringView folder; ///< with its backslash; empty for an entry of the root
    QStringView name;
};

Split split(QStringView path)
{
    const qsizetype folderLength = path.lastIndexOf(u'\\') + 1;
    return {path.left(folderLength), path.mid(folderLength)};
}

QString withBackslash(QString path)
{
    if (!path.isEmpty() && !path.endsWith(u'\\'))
        path += u'\\';
    return path;
}

} // namespace

const quint32 linkInPathError = ERROR_CANT_RESOLVE_FILENAME;

void UniqueHandle::reset()
{
    if (m_handle)
        ::CloseHandle(m_handle);
    m_handle = nullptr;
}

EntryNature natureOf(quint32 attributes, quint32 reparseTag)
{
    const bool isFolder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        // A link without a tag is a Unix link below Wine.
        if (reparseTag == 0 || IsReparseTagNameSurrogate(reparseTag))
            return isFolder ? EntryNature::FolderLink : EntryNature::FileLink;
        if (reparseTag >= socketTag && reparseTag <= blockDeviceTag)
            return EntryNature::Special;
    }
    return isFolder ? EntryNature::Folder : EntryNature::File;
}

bool isHidden(quint32 attributes)
{
    return (attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
}

std::optional<EntryAttributes> attributesOf(const UniqueHandle &entry)
{
    FILE_ATTRIBUTE_TAG_INFO tagged{};
    if (::GetFileInformationByHandleEx(entry.get(), FileAttributeTagInfo, &tagged, sizeof tagged))
        return EntryAttributes{tagged.FileAttributes,
                               natureOf(tagged.FileAttributes, tagged.ReparseTag)};
    // File systems without reparse points, for instance on memory sticks, refuse this query.
    FILE_BASIC_INFO basic{};
    if (::GetFileInformationByHandleEx(entry.get(), FileBasicInfo, &basic, sizeof basic))
        return EntryAttributes{basic.FileAttributes, natureOf(basic.FileAttributes, 0)};
    return {};
}

QString extendedPath(const QString &path)
{
    QString native = path;
    native.replace(u'/', u'\\');
    if (isDrive(native))
        native.prepend(extendedPrefix);
    else if (native.startsWith("\\\\"_L1) && !native.startsWith(extendedPrefix))
        native.replace(0, 2, sharePrefix);
    if (native.startsWith(sharePrefix) && rootLength(native) == 0)
        native += u'\\'; // a share can be named without a slash at the end, a drive cannot
    const qsizetype root = rootLength(native);
    if (root == 0)
        return {};
    if (native.size() == root)
        return native;
    const QList<QStringView> names = QStringView(native).mid(root).split(u'\\');
    for (const QStringView name : names) {
        if (name.isEmpty() || name == "."_L1 || name == ".."_L1 || name.contains(QChar(0)))
            return {};
    }
    return native;
}

QString plainPath(const QString &extended)
{
    QString path = extended;
    if (path.startsWith(sharePrefix))
        path.replace(0, sharePrefix.size(), "\\\\"_L1);
    else if (isDrive(QStringView(path).mid(extendedPrefix.size())))
        path.remove(0, extendedPrefix.size());
    return path.replace(u'\\', u'/');
}

qsizetype rootLength(const QString &extended)
{
    if (!extended.startsWith(extendedPrefix))
        return 0;
    const bool isShare = extended.startsWith(sharePrefix);
    qsizetype end = isShare ? sharePrefix.size() : extendedPrefix.size();
    for (int names = isShare ? 2 : 1; names > 0; --names) {
        const qsizetype begin = end;
        end = extended.indexOf(u'\\', begin) + 1;
        if (end <= begin + 1)
            return 0;
    }
    return end;
}

UniqueHandle openEntry(const QString &extended, quint32 access, Links links)
{
    const DWORD flags = FILE_FLAG_BACKUP_SEMANTICS
        | (links == Links::Open ? static_cast<DWORD>(FILE_FLAG_OPEN_REPARSE_POINT) : 0);
    void *const handle = ::CreateFileW(wide(extended), access,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                       nullptr, OPEN_EXISTING, flags, nullptr);
    return handle == INVALID_HANDLE_VALUE ? UniqueHandle() : UniqueHandle(handle);
}

EntryId idOf(const UniqueHandle &entry)
{
    BY_HANDLE_FILE_INFORMATION info{};
    if (!entry.isValid() || !::GetFileInformationByHandle(entry.get(), &info))
        return {};
    return {info.dwVolumeSerialNumber,
            (static_cast<quint64>(info.nFileIndexHigh) << 32) | info.nFileIndexLow};
}

EntryId idOfFolder(const QString &path)
{
    // A drive without its slash means the current folder of that drive.
    const QString extended = extendedPath(path.endsWith(u':') ? path + u'/' : path);
    return idOf(openEntry(extended, FILE_READ_ATTRIBUTES, Links::Open));
}

std::optional<bool> leadsToFile(const QString &extended)
{
    const UniqueHandle target = openEntry(extended, FILE_READ_ATTRIBUTES, Links::Follow);
    if (!target.isValid())
        return isMissing(::GetLastError()) ? std::optional(false) : std::nullopt;
    if (::GetFileType(target.get()) != FILE_TYPE_DISK)
        return false;
    FILE_STANDARD_INFO info{};
    if (!::GetFileInformationByHandleEx(target.get(), FileStandardInfo, &info, sizeof info))
        return {};
    return !info.Directory;
}

QString finalPath(const UniqueHandle &entry, PathForm form)
{
    if (!entry.isValid())
        return {};
    const DWORD volume = form == PathForm::Drive ? VOLUME_NAME_DOS : VOLUME_NAME_NT;
    QVarLengthArray<wchar_t, 512> buffer(512);
    // Links are resolved in the opened name, too. Only short names stay in it.
    for (const DWORD kind : {DWORD(FILE_NAME_NORMALIZED), DWORD(FILE_NAME_OPENED)}) {
        for (;;) {
            const auto room = static_cast<DWORD>(buffer.size());
            const DWORD length =
                ::GetFinalPathNameByHandleW(entry.get(), buffer.data(), room, volume | kind);
            if (length == 0)
                break;
            if (length < room)
                return QString::fromWCharArray(buffer.constData(), static_cast<int>(length));
            buffer.resize(static_cast<qsizetype>(length) + 1);
        }
    }
    return {};
}

QString pathOnVolume(const UniqueHandle &entry)
{
    BY_HANDLE_FILE_INFORMATION file{};
    if (!entry.isValid() || !::GetFileInformationByHandle(entry.get(), &file))
        return {};
    QByteArray buffer;
    for (const qsizetype characters : {1024, 32768}) {
        buffer.resize(static_cast<qsizetype>(sizeof(FILE_NAME_INFO)) + characters * 2);
        if (::GetFileInformationByHandleEx(entry.get(), FileNameInfo, buffer.data(),
                                           static_cast<DWORD>(buffer.size()))) {
            const auto *info = reinterpret_cast<const FILE_NAME_INFO *>(buffer.constData());
            return QString::number(file.dwVolumeSerialNumber, 16)
                + QString::fromWCharArray(info->FileName,
                                          static_cast<qsizetype>(info->FileNameLength / 2));
        }
    }
    return {};
}

void PlaceCheck::lookUp(const QString &root)
{
    if (m_root == root)
        return;
    const UniqueHandle top = openEntry(root, FILE_READ_ATTRIBUTES, Links::Follow);
    m_device = withBackslash(finalPath(top, PathForm::Device));
    m_volume = withBackslash(pathOnVolume(top));
    m_root = top.isValid() ? root : QString();
}

PlaceCheck::Place PlaceCheck::placeOf(const UniqueHandle &entry, const QString &extended)
{
    const QString root = extended.left(rootLength(extended));
    lookUp(root);
    QString actual = finalPath(entry, PathForm::Device);
    const bool isOnDevice = !actual.isEmpty() && !m_device.isEmpty();
    if (!isOnDevice)
        actual = pathOnVolume(entry);
    const QString &top = isOnDevice ? m_device : m_volume;
    if (actual.isEmpty() || top.isEmpty())
        return Place::Elsewhere;

    const Split requested = split(QStringView(extended).mid(root.size()));
    if (requested.name.isEmpty()) // some systems return the root without its backslash
        return isSameText(withBackslash(actual), top, true) ? Place::AsAsked : Place::Elsewhere;
    if (!isSameText(QStringView(actual).left(top.size()), top, true))
        return Place::Elsewhere;
    const Split found = split(QStringView(actual).mid(top.size()));
    if (!isSameText(found.folder, requested.folder, true))
        return Place::Elsewhere;
    const QStringView stripped =
        isWine() ? withoutTrailingDotsAndBlanks(requested.name) : requested.name;
    if (found.name == requested.name || found.name == stripped)
        return Place::AsAsked;
    return isSameText(found.name, requested.name, true) || isSameText(found.name, stripped, true)
        ? Place::OtherCase
        : Place::Elsewhere;
}

bool isMissing(quint32 error)
{
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_PATHNAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_NOT_READY:
        return true;
    default:
        return false;
    }
}

QString reasonOf(quint32 error)
{
    return qt_error_string(static_cast<int>(error));
}

} // namespace platform
