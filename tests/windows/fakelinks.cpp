#include "fakelinks.h"

#include <QDir>
#include <QHash>

#include <atomic>
#include <utility>

#include <windows.h>

using namespace Qt::StringLiterals;

namespace {

/// The fakes of the whole test program.
struct State {
    QHash<QString, quint32> tags; // by lower-case name
    QString junction; // in the extended form, as the target
    QString target;
    std::atomic_bool isJunctionActive = false;
    bool areTagsRefused = false;
    QString refused; // in lower case; empty for none
    quint32 refusal = 0;
    quint32 breakOff = 0;
    bool areNumbersHidden = false;
    int removalsUntilAction = 0;
    std::function<void()> action;
};

State &state()
{
    static State instance;
    return instance;
}

// The system's own function, which the import table no longer contains.
template<typename Function>
Function original(const char *name)
{
    const FARPROC found = ::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), name);
    if (!found)
        qFatal("there is no %s", name);
    return reinterpret_cast<Function>(reinterpret_cast<void *>(found));
}

QString systemForm(const QString &path)
{
    return "\\\\?\\"_L1 + QDir::toNativeSeparators(path);
}

/// The target of @p path if the junction is in it. The junction itself is redirected only if @p
/// follow is set.
std::wstring redirected(const wchar_t *path, bool follow)
{
    const QString asked = QString::fromWCharArray(path);
    const QString &junction = state().junction;
    if (!state().isJunctionActive || junction.isEmpty()
        || !asked.startsWith(junction, Qt::CaseInsensitive))
        return path;
    const QString rest = asked.mid(junction.size());
    if (rest.isEmpty() ? !follow : !rest.startsWith(u'\\'))
        return path;
    return (state().target + rest).toStdWString();
}

bool isRefused(const wchar_t *path)
{
    const State &fakes = state();
    if (fakes.refused.isEmpty()
        || !QString::fromWCharArray(path).toLower().split(u'\\').contains(fakes.refused))
        return false;
    ::SetLastError(fakes.refusal);
    return true;
}

quint32 tagOf(const QString &name)
{
    return state().tags.value(name.toLower());
}

void addTag(WIN32_FIND_DATAW &data)
{
    const quint32 tag = tagOf(QString::fromWCharArray(data.cFileName));
    if (tag == 0)
        return;
    data.dwFileAttributes |= FILE_ATTRIBUTE_REPARSE_POINT;
    data.dwReserved0 = tag;
}

HANDLE WINAPI findFirst(LPCWSTR pattern, FINDEX_INFO_LEVELS level, LPVOID data,
                        FINDEX_SEARCH_OPS op, LPVOID filter, DWORD flags)
{
    static const auto systemFunction = original<decltype(&findFirst)>("FindFirstFileExW");
    if (isRefused(pattern))
        return INVALID_HANDLE_VALUE;
    const HANDLE search =
        systemFunction(redirected(pattern, false).c_str(), level, data, op, filter, flags);
    if (search != INVALID_HANDLE_VALUE)
        addTag(*static_cast<WIN32_FIND_DATAW *>(data));
    return search;
}

BOOL WINAPI findNext(HANDLE search, LPWIN32_FIND_DATAW data)
{
    static const auto systemFunction = original<decltype(&findNext)>("FindNextFileW");
    if (state().breakOff != 0) {
        ::SetLastError(state().breakOff);
        return FALSE;
    }
    const BOOL found = systemFunction(search, data);
    if (found)
        addTag(*data);
    return found;
}

HANDLE WINAPI createFile(LPCWSTR path, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                         DWORD disposition, DWORD flags, HANDLE pattern)
{
    static const auto systemFunction = original<decltype(&createFile)>("CreateFileW");
    const bool follow = (flags & FILE_FLAG_OPEN_REPARSE_POINT) == 0;
    if (follow && isRefused(path))
        return INVALID_HANDLE_VALUE;
    return systemFunction(redirected(path, follow).c_str(), access, share, security, disposition,
                          flags, pattern);
}

BOOL WINAPI informationOf(HANDLE handle, FILE_INFO_BY_HANDLE_CLASS kind, LPVOID info, DWORD size)
{
    static const auto systemFunction =
        original<decltype(&informationOf)>("GetFileInformationByHandleEx");
    if (state().areTagsRefused && kind == FileAttributeTagInfo) {
        ::SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    const BOOL isKnown = systemFunction(handle, kind, info, size);
    if (!isKnown || kind != FileAttributeTagInfo)
        return isKnown;
    wchar_t path[1024];
    const DWORD length = ::GetFinalPathNameByHandleW(handle, path, 1024, VOLUME_NAME_NONE);
    if (length == 0 || length >= 1024)
        return isKnown;
    const QString name = QString::fromWCharArray(path, int(length)).section(u'\\', -1);
    if (const quint32 tag = tagOf(name)) {
        auto *const tagInfo = static_cast<FILE_ATTRIBUTE_TAG_INFO *>(info);
        tagInfo->FileAttributes |= FILE_ATTRIBUTE_REPARSE_POINT;
        tagInfo->ReparseTag = tag;
    }
    return isKnown;
}

BOOL WINAPI setInformation(HANDLE handle, FILE_INFO_BY_HANDLE_CLASS kind, LPVOID info, DWORD size)
{
    static const auto systemFunction =
        original<decltype(&setInformation)>("SetFileInformationByHandle");
    const BOOL isSet = systemFunction(handle, kind, info, size);
    if (isSet)
        --state().removalsUntilAction;
    return isSet;
}

BOOL WINAPI fileInformation(HANDLE handle, LPBY_HANDLE_FILE_INFORMATION info)
{
    static const auto systemFunction =
        original<decltype(&fileInformation)>("GetFileInformationByHandle");
    const BOOL isKnown = systemFunction(handle, info);
    if (state().areNumbersHidden)
        info->nFileIndexHigh = info->nFileIndexLow = 0;
    return isKnown;
}

BOOL WINAPI closeHandle(HANDLE handle)
{
    static const auto systemFunction = original<decltype(&closeHandle)>("CloseHandle");
    const BOOL isClosed = systemFunction(handle);
    if (state().action && state().removalsUntilAction <= 0)
        std::exchange(state().action, nullptr)();
    return isClosed;
}

BOOL WINAPI deleteFile(LPCWSTR path)
{
    static const auto systemFunction = original<decltype(&deleteFile)>("DeleteFileW");
    return systemFunction(redirected(path, false).c_str());
}

BOOL WINAPI removeDirectory(LPCWSTR path)
{
    static const auto systemFunction = original<decltype(&removeDirectory)>("RemoveDirectoryW");
    return systemFunction(redirected(path, false).c_str());
}

} // namespace

// The linker takes these entries of the program's import table instead of the system's.
extern "C" {
extern decltype(&findFirst) const importedFindFirst asm("__imp_FindFirstFileExW");
decltype(&findFirst) const importedFindFirst = findFirst;
extern decltype(&findNext) const importedFindNext asm("__imp_FindNextFileW");
decltype(&findNext) const importedFindNext = findNext;
extern decltype(&createFile) const importedCreateFile asm("__imp_CreateFileW");
decltype(&createFile) const importedCreateFile = createFile;
extern decltype(&informationOf)
    const importedInformationOf asm("__imp_GetFileInformationByHandleEx");
decltype(&informationOf) const importedInformationOf = informationOf;
extern decltype(&setInformation)
    const importedSetInformation asm("__imp_SetFileInformationByHandle");
decltype(&setInformation) const importedSetInformation = setInformation;
extern decltype(&fileInformation)
    const importedFileInformation asm("__imp_GetFileInformationByHandle");
decltype(&fileInformation) const importedFileInformation = fileInformation;
extern decltype(&closeHandle) const importedCloseHandle asm("__imp_CloseHandle");
decltype(&closeHandle) const importedCloseHandle = closeHandle;
extern decltype(&deleteFile) const importedDeleteFile asm("__imp_DeleteFileW");
decltype(&deleteFile) const importedDeleteFile = deleteFile;
extern decltype(&removeDirectory) const importedRemoveDirectory asm("__imp_RemoveDirectoryW");
decltype(&removeDirectory) const importedRemoveDirectory = removeDirectory;
}

void fakelinks::tag(const QString &name, quint32 reparseTag)
{
    state().tags.insert(name.toLower(), reparseTag);
}

void fakelinks::makeJunction(const QString &path, const QString &target)
{
    state().junction = systemForm(path);
    state().target = systemForm(target);
    tag(path.section(u'/', -1), IO_REPARSE_TAG_MOUNT_POINT);
    state().isJunctionActive = true;
}

void fakelinks::setJunctionActive(bool active)
{
    state().isJunctionActive = active;
}

void fakelinks::refuseTags()
{
    state().areTagsRefused = true;
}

void fakelinks::refuse(const QString &name, quint32 error)
{
    state().refused = name.toLower();
    state().refusal = error;
}

void fakelinks::breakListings(quint32 error)
{
    state().breakOff = error;
}

void fakelinks::hideNumbers()
{
    state().areNumbersHidden = true;
}

void fakelinks::callAfterRemovals(int count, const std::function<void()> &action)
{
    state().removalsUntilAction = count;
    state().action = action;
}

void fakelinks::clear()
{
    state().areNumbersHidden = false;
    state().action = nullptr;
    state().refused.clear();
    state().breakOff = 0;
    state().areTagsRefused = false;
    state().isJunctionActive = false;
    state().junction.clear();
    state().target.clear();
    state().tags.clear();
}
