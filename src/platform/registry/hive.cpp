#include "hive.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// The names of one hive.
struct HiveNames {
    Hive hive;
    QString fullName;
    QString shortName;
};

const std::array<HiveNames, 3> &allNames()
{
    static const std::array<HiveNames, 3> names{{
        {Hive::LocalMachine, u"HKEY_LOCAL_MACHINE"_s, u"HKLM"_s},
        {Hive::CurrentUser, u"HKEY_CURRENT_USER"_s, u"HKCU"_s},
        {Hive::ClassesRoot, u"HKEY_CLASSES_ROOT"_s, u"HKCR"_s},
    }};
    return names;
}

const HiveNames &namesOf(Hive hive)
{
    return *std::find_if(allNames().begin(), allNames().end(),
                         [hive](const HiveNames &names) { return names.hive == hive; });
}

} // namespace

QString hiveName(Hive hive)
{
    return namesOf(hive).fullName;
}

QString shortHiveName(Hive hive)
{
    return namesOf(hive).shortName;
}

std::optional<Hive> hiveNamed(const QString &name)
{
    for (const HiveNames &names : allNames()) {
        if (name == names.fullName || name == names.shortName)
            return names.hive;
    }
    return std::nullopt;
}

std::optional<HivePath> hivePath(const QString &path)
{
    const qsizetype end = path.indexOf(u'\\');
    if (end < 0)
        return std::nullopt;
    for (const HiveNames &names : allNames()) {
        if (path.first(end) == names.fullName)
            return HivePath{names.hive, path.mid(end + 1)};
    }
    return std::nullopt;
}

} // namespace platform
