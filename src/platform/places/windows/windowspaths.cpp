#include "windowspaths.h"

#include "windows/openentry.h"

#include <QDir>

#include <windows.h>

namespace platform {

QString localPath(const QString &path)
{
    return path;
}

std::optional<QString> windowsVariable(const QString &name)
{
    return qEnvironmentVariable(name.toLatin1().constData());
}

/// A lookup on Windows needs no state.
class PathLookup::Private
{
};

PathLookup::PathLookup() = default;
PathLookup::~PathLookup() = default;

Presence PathLookup::presenceOf(const QString &path)
{
    const QString extended = extendedPath(QDir::cleanPath(QDir::fromNativeSeparators(path)));
    if (extended.isEmpty())
        return Presence::Missing;
    if (::GetFileAttributesW(reinterpret_cast<const wchar_t *>(extended.utf16()))
        != INVALID_FILE_ATTRIBUTES)
        return Presence::Present;
    const DWORD error = ::GetLastError();
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_INVALID_DRIVE:
        return Presence::Missing;
    default:
        m_readFailures.add(path, reasonOf(error));
        return Presence::Unknown;
    }
}

} // namespace platform
