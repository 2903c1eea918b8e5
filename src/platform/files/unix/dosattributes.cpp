#include "unix/dosattributes.h"

#include "unix/wineprefix.h"

#include <QFileInfo>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>

#include <sys/types.h>
#include <sys/xattr.h>

namespace platform {

namespace {

constexpr unsigned long hidden = 2;
constexpr unsigned long system = 4;
constexpr std::size_t longestPath = 64 + 256; ///< the path of the open folder and the name

} // namespace

DosAttributes::DosAttributes()
{
    const QString prefix = wineprefix::folder();
    if (prefix.isEmpty())
        return;
    m_roots.append(prefix + u'/');
    // The temporary folder can be outside the prefix.
    if (const QString temporary = wineprefix::temporaryFolder(); !temporary.isEmpty())
        m_roots.append(QFileInfo(temporary).canonicalFilePath() + u'/');
    // The drive that is the whole system is skipped: the attribute of each file would be read.
    for (const QString &drive : wineprefix::drives()) {
        if (drive != u'/')
            m_roots.append(drive + u'/');
    }
}

bool DosAttributes::canApplyIn(const QString &folder) const
{
    return std::any_of(m_roots.begin(), m_roots.end(), [&folder](const QString &root) {
        return folder.startsWith(root)
            || (folder.size() + 1 == root.size() && root.startsWith(folder));
    });
}

// The value is a text such as "0x6". Other programs may have written something else there.
bool DosAttributes::isHidden(int folder, const char *name)
{
    char path[longestPath];
    const int length = std::snprintf(path, sizeof path, "/proc/self/fd/%d/%s", folder, name);
    if (length < 0 || static_cast<std::size_t>(length) >= sizeof path)
        return false;
    char value[64] = {};
    if (::getxattr(path, "user.DOSATTRIB", value, sizeof value - 1) < 0 || value[0] != '0'
        || value[1] != 'x')
        return false;
    const char *digits = value + 2;
    if (!std::isxdigit(static_cast<unsigned char>(*digits)))
        return false;
    char *end = nullptr;
    const unsigned long attributes = std::strtoul(digits, &end, 16);
    return *end == '\0' && (attributes & (hidden | system)) != 0;
}

} // namespace platform
