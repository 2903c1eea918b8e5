#include "unix/dosattributes.h"

#include "placenotes_p.h"
#include "unix/openfolder.h"
#include "unix/wineprefix.h"

#include <algorithm>
#include <atomic>
#include <cctype>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr unsigned long hidden = 2;
constexpr unsigned long system = 4;
constexpr std::size_t longestPath = 64 + 256; ///< the path of the open folder and the name
constexpr const char *attributeName = "user.DOSATTRIB";

// Whether the errno says that there is no such attribute, or none that Wine wrote.
bool isNoAttribute(int error)
{
    return error == ENODATA || error == ENOTSUP || error == ERANGE;
}

// What the errno of an attribute that cannot be read means for the entry.
int errorFor(int error, int folder, const char *name)
{
    FileStatus status{};
    if (::fstatat(folder, name, &status, 0) != 0)
        return error;
    // Wine runs with the same rights, so its programs see no attribute either.
    if (error == EACCES && ::faccessat(folder, name, R_OK, AT_EACCESS) != 0 && errno == EACCES)
        return 0;
    // The entry is there: the system reports this for each entry if there is no /proc.
    return meansMissing(error) ? ENODEV : error;
}

// getxattrat() of Linux 6.13, which the C library does not have yet. Follows links.
ssize_t readAt(int folder, const char *name, char *value, std::size_t size)
{
    constexpr long number = 464; // on all processors
    struct {
        std::uint64_t value;
        std::uint32_t size;
        std::uint32_t flags;
    } const arguments{reinterpret_cast<std::uintptr_t>(value), static_cast<std::uint32_t>(size), 0};
    return ::syscall(number, folder, name, 0, attributeName, &arguments, sizeof arguments);
}

// The way of older systems takes three times as long.
ssize_t readByPath(int folder, const char *name, char *value, std::size_t size)
{
    char path[longestPath];
    const int length = std::snprintf(path, sizeof path, "/proc/self/fd/%d/%s", folder, name);
    if (length < 0 || static_cast<std::size_t>(length) >= sizeof path) {
        errno = ENAMETOOLONG;
        return -1;
    }
    return ::getxattr(path, attributeName, value, size);
}

// The length of the attribute; -1 with errno on failure.
ssize_t readAttribute(int folder, const char *name, char *value, std::size_t size)
{
    static std::atomic_bool isOldSystem = false;
    if (!isOldSystem.load(std::memory_order_relaxed)) {
        const ssize_t length = readAt(folder, name, value, size);
        // A sandbox that does not know the call may answer EPERM.
        if (length >= 0 || (errno != ENOSYS && errno != EPERM))
            return length;
        isOldSystem = true;
    }
    return readByPath(folder, name, value, size);
}

} // namespace

DosAttributes::DosAttributes()
{
    const placenotes::Watch watch;
    const QString prefix = wineprefix::folder();
    if (!prefix.isEmpty()) {
        m_roots.append(prefix);
        // The temporary folder can be outside the prefix.
        const QString temporary = wineprefix::temporaryFolder();
        QString error;
        m_roots.append(reachablePath(temporary, error));
        if (!error.isEmpty())
            placenotes::add(temporary, error);
        m_roots.append(wineprefix::drives());
        // The drive that is the whole system is skipped: the attribute of each file would be read.
        m_roots.removeAll(u"/"_s);
        m_roots.removeAll(QString());
    }
    m_isCertain = !watch.sawFailure();
}

bool DosAttributes::canApplyIn(const QString &folder) const
{
    return !m_isCertain
        || std::any_of(m_roots.begin(), m_roots.end(), [&folder](const QString &root) {
               return folder == root || folder.startsWith(root + u'/');
           });
}

// The value is a text such as "0x6". Other programs may have written something else there.
DosAttributes::Answer DosAttributes::isHidden(int folder, const char *name)
{
    char value[64] = {};
    if (readAttribute(folder, name, value, sizeof value - 1) < 0)
        return {false, isNoAttribute(errno) ? 0 : errorFor(errno, folder, name)};
    if (value[0] != '0' || value[1] != 'x')
        return {};
    const char *digits = value + 2;
    if (!std::isxdigit(static_cast<unsigned char>(*digits)))
        return {};
    char *end = nullptr;
    const unsigned long attributes = std::strtoul(digits, &end, 16);
    return {*end == '\0' && (attributes & (hidden | system)) != 0, 0};
}

} // namespace platform
