#include "windowspaths.h"

#include "wineprefix_unix.h"

#include <QFileInfo>
#include <QHash>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// A folder below the prefix's C: drive as Windows programs name it.
QString windowsPath(const QString &folder)
{
    const QString drive = wineprefix::systemDrive();
    if (drive.isEmpty() || !(folder + u'/').startsWith(drive + u'/'))
        return {};
    return "C:"_L1 + folder.mid(drive.size()).replace(u'/', u'\\');
}

// What Wine sets for every program.
QString prefixVariable(const QString &name)
{
    if (wineprefix::folder().isEmpty())
        return {};
    static const QHash<QString, QString> fixed{
        {u"SYSTEMROOT"_s, u"C:\\windows"_s},
        {u"WINDIR"_s, u"C:\\windows"_s},
        {u"PROGRAMFILES"_s, u"C:\\Program Files"_s},
        {u"PROGRAMFILES(X86)"_s, u"C:\\Program Files (x86)"_s},
        {u"COMMONPROGRAMFILES"_s, u"C:\\Program Files\\Common Files"_s},
        {u"COMMONPROGRAMFILES(X86)"_s, u"C:\\Program Files (x86)\\Common Files"_s},
        {u"SYSTEMDRIVE"_s, u"C:"_s},
        {u"HOMEDRIVE"_s, u"C:"_s},
    };
    if (const auto value = fixed.constFind(name); value != fixed.cend())
        return *value;
    if (name == "TEMP"_L1 || name == "TMP"_L1)
        return windowsPath(wineprefix::temporaryFolder());
    const QString user = windowsPath(wineprefix::userFolder());
    if (user.isEmpty())
        return {};
    if (name == "USERPROFILE"_L1)
        return user;
    if (name == "HOMEPATH"_L1)
        return user.mid(2);
    if (name == "LOCALAPPDATA"_L1)
        return user + "\\AppData\\Local"_L1;
    if (name == "APPDATA"_L1)
        return user + "\\AppData\\Roaming"_L1;
    return {};
}

} // namespace

QString localPath(const QString &path)
{
    QString local = path;
    local.replace(u'\\', u'/');
    if (local.startsWith("//?/"_L1))
        local.remove(0, 4);
    if (local.size() < 2 || local.at(1) != u':' || !local.at(0).isLetter())
        return local;
    const QString drive = wineprefix::drive(local.at(0));
    if (drive.isEmpty())
        return path; // with its backslashes it is nothing here
    const QString exact = drive + u'/' + local.mid(2);
    if (QFileInfo::exists(exact))
        return exact;
    // What ends in a separator is a folder or nothing.
    return wineprefix::matchCase(drive, local.mid(2)) + (local.endsWith(u'/') ? u"/"_s : QString());
}

QString windowsVariable(const QString &name)
{
    const QString value = qEnvironmentVariable(name.toLatin1().constData());
    return value.isEmpty() ? prefixVariable(name) : value;
}

} // namespace platform
