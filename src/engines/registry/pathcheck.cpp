#include "pathcheck.h"

#include "registrykeys.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using platform::Hive;
using platform::Registry;

namespace {

// The placeholders are replaced in this order. exists() accepts only this spelling.
constexpr std::array placeholderVariables{
    std::pair("%SystemRoot%"_L1, "SYSTEMROOT"_L1),
    std::pair("%ProgramFiles%"_L1, "PROGRAMFILES"_L1),
    std::pair("%ProgramFiles(x86)%"_L1, "PROGRAMFILES(X86)"_L1),
    std::pair("%WinDir%"_L1, "WINDIR"_L1),
    std::pair("%UserProfile%"_L1, "USERPROFILE"_L1),
    std::pair("%LocalAppData%"_L1, "LOCALAPPDATA"_L1),
    std::pair("%AppData%"_L1, "APPDATA"_L1),
    std::pair("%CommonProgramFiles%"_L1, "COMMONPROGRAMFILES"_L1),
    std::pair("%CommonProgramFiles(x86)%"_L1, "COMMONPROGRAMFILES(X86)"_L1),
    std::pair("%SystemDrive%"_L1, "SYSTEMDRIVE"_L1),
    std::pair("%HomeDrive%"_L1, "HOMEDRIVE"_L1),
    std::pair("%HomePath%"_L1, "HOMEPATH"_L1),
    std::pair("%Temp%"_L1, "TEMP"_L1),
    std::pair("%Tmp%"_L1, "TMP"_L1),
};

bool isSeparator(QChar c)
{
    return c == u'\\' || c == u'/';
}

// The suffixes that a command may leave out.
constexpr std::array programSuffixes{".exe"_L1, ".com"_L1, ".bat"_L1, ".cmd"_L1};

// Whether the text is an address, such as "https://..." or "shell:...", and not a path. A single
// letter is a drive.
bool hasScheme(const QString &path)
{
    static const QRegularExpression scheme(u"^[A-Za-z][A-Za-z0-9+.-]+:"_s);
    return scheme.match(path).hasMatch();
}

// Whether the text has a blank in front or control characters. Only the system knows how it
// interprets them.
bool hasUnusualCharacters(const QString &text)
{
    return text.startsWith(u' ')
        || std::any_of(text.begin(), text.end(), [](QChar c) { return c < u' '; });
}

// Whether the path may be another name of a file than the one in a listing. The system also accepts
// the short form of a long name, and blanks and dots at the end of a name. Blanks and dots are
// looked for before a backslash only: a slash may begin the arguments of a program.
bool mayBeAlias(const QString &path)
{
    static const QRegularExpression shortName(
        u"(^|[\\\\/])[^~. \\\\/]{1,6}~[0-9]{1,6}(\\.[^.\\\\/]{0,3})?($|[\\\\/])"_s);
    const QStringList names = path.split(u'\\', Qt::SkipEmptyParts);
    return shortName.match(path).hasMatch()
        || std::any_of(names.begin(), names.end(), [](const QString &name) {
               return (name.endsWith(u' ') || name.endsWith(u'.')) && name != "."_L1
                   && name != ".."_L1;
           });
}

} // namespace

PathCheck::PathCheck(const Registry &registry)
{
    for (const auto &[placeholder, variable] : placeholderVariables)
        m_placeholders.emplaceBack(placeholder, platform::windowsVariable(variable));
    const QString windows = platform::windowsVariable(u"WINDIR"_s).value_or(QString());
    if (platform::isOnDrive(windows)) {
        for (const QLatin1StringView folder : {"\\System32\\"_L1, "\\SysWOW64\\"_L1, "\\"_L1})
            m_searchFolders.append(windows + folder);
    }
    readSearchPath(registry);
    const QString appPaths = registrykeys::currentVersion + "App Paths"_L1;
    for (const Hive hive : {Hive::CurrentUser, Hive::LocalMachine}) {
        for (const QString &name : registry.subkeys(hive, appPaths))
            m_appPaths.insert(name.toCaseFolded(),
                              registry.text(hive, appPaths + u'\\' + name, {}));
    }
}

// Reads PATH from the registry keys from which the system fills the environment of every program.
void PathCheck::readSearchPath(const Registry &registry)
{
    const QString environment = u"\\Control\\Session Manager\\Environment"_s;
    QStringList texts{registry.text(Hive::CurrentUser, u"Environment"_s, u"PATH"_s)};
    for (const QLatin1StringView set : {"CurrentControlSet"_L1, "ControlSet001"_L1})
        texts.append(
            registry.text(Hive::LocalMachine, "SYSTEM\\"_L1 + set + environment, u"PATH"_s));
    const QStringList folders = texts.join(u';').split(u';', Qt::SkipEmptyParts);
    for (QString folder : folders) {
        for (const auto &[placeholder, value] : std::as_const(m_placeholders)) {
            if (value)
                folder.replace(placeholder, *value, Qt::CaseInsensitive);
        }
        if (platform::isOnDrive(folder))
            m_searchFolders.append(folder + u'\\');
    }
    m_searchFolders.removeDuplicates();
}

bool PathCheck::exists(const QString &text)
{
    if (text.isEmpty())
        return false;
    QString path = text;
    if (path.startsWith(u'"') && path.endsWith(u'"')) {
        path.remove(0, 1);
        path.chop(1);
    }
    if (path.startsWith(u'%') && path.size() < 4)
        return true; // too short to hold a placeholder
    if (hasUnusualCharacters(path))
        return true;
    for (const auto &[placeholder, value] : std::as_const(m_placeholders)) {
        if (!value && path.contains(placeholder))
            return true;
        path.replace(placeholder, value.value_or(QString()));
    }
    if (path.contains(u'%'))
        return true;
    if (path.isEmpty())
        return false;
    if (path.startsWith("\\\\?\\"_L1) && platform::isOnDrive(path.mid(4)))
        path.remove(0, 4);
    if (platform::isOnDrive(path))
        return existsOnDrive(path) || mayBeAlias(path);
    // A path on the current drive or on another machine, or a name in the system's own form. It
    // cannot be checked here.
    const bool isRooted = isSeparator(path.at(0));
    const bool isDriveRelative = path.size() >= 2 && path.at(1) == u':';
    if (isRooted || isDriveRelative || mayBeAlias(path) || hasScheme(path))
        return true;
    const bool isFound =
        std::any_of(m_searchFolders.cbegin(), m_searchFolders.cend(),
                    [&](const QString &folder) { return existsOnDrive(folder + path); });
    return isFound || existsAsAppPath(path);
}

bool PathCheck::existsOnDrive(const QString &path)
{
    constexpr qsizetype longestPath = 32'767; // characters; Windows opens no longer one
    if (path.size() > longestPath)
        return false;
    const auto mayExist = [this](const QString &file) {
        return m_lookup.presenceOf(file) != platform::Presence::Missing;
    };
    if (mayExist(path))
        return true;
    const auto name = std::find_if(path.rbegin(), path.rend(), isSeparator).base();
    return std::find(name, path.end(), u'.') == path.end()
        && std::any_of(programSuffixes.begin(), programSuffixes.end(),
                       [&](QLatin1StringView suffix) { return mayExist(path + suffix); });
}

bool PathCheck::existsAsAppPath(const QString &name)
{
    for (const QString &fileName : {name.toCaseFolded(), name.toCaseFolded() + ".exe"_L1}) {
        QString path = m_appPaths.value(fileName);
        if (path.startsWith(u'"'))
            path = quotedPart(path);
        if (platform::isOnDrive(path) && existsOnDrive(path))
            return true;
    }
    return false;
}

QString PathCheck::programPath(const QString &command)
{
    if (command.startsWith(u'"'))
        return quotedPart(command);
    const qsizetype end = command.indexOf(u' ');
    return end > 0 ? command.first(end) : command;
}

QString PathCheck::quotedPart(const QString &text)
{
    if (!text.startsWith(u'"'))
        return text;
    const qsizetype end = text.indexOf(u'"', 1);
    return end > 0 ? text.mid(1, end - 1) : text;
}
