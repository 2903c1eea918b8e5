#include "rulefile.h"

#include <QCoreApplication>
#include <QJsonArray>

#include <algorithm>

namespace rulefile {

QString text(const char *context, const QJsonValue &value)
{
    return QCoreApplication::translate(context, value.toString().toUtf8().constData());
}

QStringList stringList(const QJsonValue &value)
{
    QStringList list;
    const QJsonArray array = value.toArray();
    for (const auto &element : array)
        list.append(element.toString());
    return list;
}

bool takesNearlyAll(const QStringList &patterns)
{
    // "*.*" and the like leave out a few names only.
    const auto isNearlyAll = [](const QString &pattern) {
        return pattern.contains(u'*') && std::all_of(pattern.begin(), pattern.end(), [](QChar c) {
                   return c == u'*' || c == u'?' || c == u'.';
               });
    };
    return patterns.isEmpty() || std::any_of(patterns.begin(), patterns.end(), isNearlyAll);
}

} // namespace rulefile
