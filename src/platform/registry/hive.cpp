#include "hive.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

struct Names {
    Hive hive;
    QString inFull;
    QString inShort;
};

const std::array<Names, 3> &allNames()
{
    static const std::array<Names, 3> names{{
        {Hive::LocalMachine, u"HKEY_LOCAL_MACHINE"_s, u"HKLM"_s},
        {Hive::CurrentUser, u"HKEY_CURRENT_USER"_s, u"HKCU"_s},
        {Hive::ClassesRoot, u"HKEY_CLASSES_ROOT"_s, u"HKCR"_s},
    }};
    return names;
}

const Names &namesOf(Hive hive)
{
    return *std::find_if(allNames().begin(), allNames().end(),
                         [hive](const Names &names) { return names.hive == hive; });
}

} // namespace

QString hiveName(Hive hive)
{
    return namesOf(hive).inFull;
}

QString shortHiveName(Hive hive)
{
    return namesOf(hive).inShort;
}

std::optional<Hive> hiveNamed(const QString &name)
{
    for (const Names &names : allNames()) {
        if (name == names.inFull || name == names.inShort)
            return names.hive;
    }
    return std::nullopt;
}

std::optional<HivePath> hivePath(const QString &path)
{
    const qsizetype end = path.indexOf(u'\\');
    if (end < 0)
        return std::nullopt;
    for (const Names &names : allNames()) {
        if (path.first(end) == names.inFull)
            return HivePath{names.hive, path.mid(end + 1)};
    }
    return std::nullopt;
}

} // namespace platform
