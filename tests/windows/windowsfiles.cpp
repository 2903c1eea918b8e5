#include "windowsfiles.h"

#include "filewalk.h"

#include <QDir>
#include <QProcess>
#include <QThread>

#include <functional>

#include <windows.h>

using namespace Qt::StringLiterals;

namespace {

using ToUnixName = char *(CDECL *)(const wchar_t *);

// Wine's own function; null on Windows.
ToUnixName toUnixName()
{
    const FARPROC found =
        ::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name");
    return reinterpret_cast<ToUnixName>(reinterpret_cast<void *>(found));
}

std::wstring extendedForm(const QString &path)
{
    return ("\\\\?\\"_L1 + QDir::toNativeSeparators(path)).toStdWString();
}

// The Unix path of a file.
QString pathBelowWine(const QString &path)
{
    char *const name = toUnixName()(extendedForm(path).c_str());
    const QString result = QString::fromUtf8(name);
    ::HeapFree(::GetProcessHeap(), 0, name);
    return result;
}

bool exists(const QString &path)
{
    return ::GetFileAttributesW(extendedForm(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

// Starts a program and waits for its result, because Wine reports neither the end nor the exit code
// of a Unix program.
void runUntil(const std::function<bool()> &isDone, const QString &program,
              const QStringList &arguments, int timeoutMs = 10'000)
{
    if (!QProcess::startDetached(program, arguments))
        qFatal("cannot run %s", qPrintable(program));
    for (int waited = 0; waited < timeoutMs; waited += 10) {
        if (isDone())
            return;
        QThread::msleep(10);
    }
    qFatal("%s %s did nothing", qPrintable(program), qPrintable(arguments.join(u' ')));
}

} // namespace

void windowsfiles::setAttributes(const QString &path, quint32 attributes)
{
    if (!::SetFileAttributesW(extendedForm(path).c_str(), attributes)
        || windowsfiles::attributes(path) != attributes)
        qFatal("cannot set the attributes of %s", qPrintable(path));
}

quint32 windowsfiles::attributes(const QString &path)
{
    // These two bits do not matter to the tests.
    constexpr DWORD ignored = FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    const DWORD found = ::GetFileAttributesW(extendedForm(path).c_str());
    if (found == INVALID_FILE_ATTRIBUTES)
        qFatal("there is no %s", qPrintable(path));
    const DWORD kept = found & ~ignored;
    return kept == 0 ? quint32(FILE_ATTRIBUTE_NORMAL) : kept;
}

void windowsfiles::makeFile(const QString &path, const QByteArray &content)
{
    const HANDLE file = ::CreateFileW(extendedForm(path).c_str(), GENERIC_WRITE, 0, nullptr,
                                      CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    if (file == INVALID_HANDLE_VALUE
        || !::WriteFile(file, content.constData(), DWORD(content.size()), &written, nullptr)
        || !::CloseHandle(file))
        qFatal("cannot make %s", qPrintable(path));
}

void windowsfiles::makeFolder(const QString &path)
{
    if (!::CreateDirectoryW(extendedForm(path).c_str(), nullptr))
        qFatal("cannot make %s", qPrintable(path));
}

QByteArray windowsfiles::content(const QString &path)
{
    const HANDLE file = ::CreateFileW(extendedForm(path).c_str(), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return {};
    QByteArray bytes(4096, '\0');
    DWORD size = 0;
    if (!::ReadFile(file, bytes.data(), DWORD(bytes.size()), &size, nullptr))
        qFatal("cannot read %s", qPrintable(path));
    ::CloseHandle(file);
    bytes.truncate(size);
    return bytes;
}

bool windowsfiles::isWine()
{
    return toUnixName() != nullptr;
}

void windowsfiles::makeFolderLink(const QString &path, const QString &target)
{
    const auto isDone = [&path] { return exists(path); };
    if (isWine())
        runUntil(isDone, u"Z:\\bin\\ln"_s, {u"-s"_s, pathBelowWine(target), pathBelowWine(path)});
    else
        runUntil(isDone, u"cmd"_s,
                 {u"/c"_s, u"mklink"_s, u"/J"_s, QDir::toNativeSeparators(path),
                  QDir::toNativeSeparators(target)});
}

void windowsfiles::removeFolderLink(const QString &path)
{
    if (isWine())
        runUntil([&path] { return !exists(path); }, u"Z:\\bin\\rm"_s, {pathBelowWine(path)});
    else if (!::RemoveDirectoryW(extendedForm(path).c_str()))
        qFatal("cannot remove %s", qPrintable(path));
}

void windowsfiles::removeTreeBelowWine(const QString &path)
{
    runUntil([&path] { return !exists(path); }, u"Z:\\bin\\rm"_s, {u"-r"_s, pathBelowWine(path)},
             120'000);
}

void windowsfiles::makeEmptyFileBelowWine(const QString &folder, const QString &name)
{
    runUntil([&] { return walk(folder).contains(name); }, u"Z:\\bin\\cp"_s,
             {u"/dev/null"_s, pathBelowWine(folder) + u'/' + name});
}

void windowsfiles::makeManyFiles(const QString &folder, int count)
{
    if (!isWine()) {
        for (int i = 0; i < count; ++i)
            makeFile(folder + u"/f%1"_s.arg(i));
        return;
    }
    // split writes one file for each line of the list.
    const QString list = folder + ".list"_L1;
    makeFile(list, QByteArray(count, '\n'));
    const QString last =
        u"%1/f%2"_s.arg(folder, QString::number(count - 1).rightJustified(6, u'0'));
    runUntil([&last] { return exists(last); }, u"Z:\\usr\\bin\\split"_s,
             {u"--lines=1"_s, u"--numeric-suffixes"_s, u"--suffix-length=6"_s, pathBelowWine(list),
              pathBelowWine(folder) + "/f"_L1},
             120'000);
    removeTreeBelowWine(list);
}

void windowsfiles::removeManyFiles(const QString &folder)
{
    if (isWine())
        removeTreeBelowWine(folder);
    else if (!QDir(folder).removeRecursively())
        qFatal("cannot remove %s", qPrintable(folder));
}

QStringList windowsfiles::walk(const QString &root)
{
    QStringList found;
    const platform::ReadFailures report =
        platform::walkFiles(root, {}, [&](platform::WalkedFile &&file) {
            if (!file.path.startsWith(root + u'/') || !file.path.endsWith(u'/' + file.name))
                qFatal("not a path below the root: %s", qPrintable(file.path));
            found.append(file.path.mid(root.size() + 1));
        });
    for (const platform::ReadFailure &failure : report.kept())
        qWarning("%s: %s", qPrintable(failure.where), qPrintable(failure.reason));
    found.sort();
    return found;
}
