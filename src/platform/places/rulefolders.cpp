#include "rulefolders_p.h"

#include "rulefolders.h"

using namespace Qt::StringLiterals;

namespace platform {

QString locate(const QString &base, const QString &relative, QString *problem)
{
    const QString requested = localFolder(base);
    const QString folder = canonicalPath(requested, problem);
    if (folder.isEmpty())
        return {};
    const QStringList names =
        QString(relative).replace(u'\\', u'/').split(u'/', Qt::SkipEmptyParts);
    if (names.contains(".."_L1) || names.contains("."_L1)) {
        if (problem)
            *problem = u"a path with . or .. in it is not followed"_s;
        return {};
    }
    return names.isEmpty() ? folder : storedPath(folder, names, problem);
}

QString locate(const QString &base, const QString &relative, ReadFailures &failures)
{
    QString problem;
    const QString path = locate(base, relative, &problem);
    if (!problem.isEmpty())
        failures.add(relative.isEmpty() ? base : base + u'/' + relative, problem);
    return path;
}

} // namespace platform
