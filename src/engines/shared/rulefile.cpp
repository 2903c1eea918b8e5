#include "rulefile.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace rulefile {

namespace {

constexpr QByteArrayView utf8ByteOrderMark("\xEF\xBB\xBF");

Content withProblem(Content content, Problem problem, const QString &error)
{
    content.problem = problem;
    content.error = error;
    return content;
}

} // namespace

Content read(const QString &path)
{
    Content content;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return withProblem(content, Problem::NotOpened, file.errorString());
    QByteArray text = file.readAll();
    content.size = text.size();
    content.hasByteOrderMark = text.startsWith(utf8ByteOrderMark);
    if (content.hasByteOrderMark)
        text.remove(0, utf8ByteOrderMark.size());
    content.start = QString::fromUtf8(text.left(100));
    QJsonParseError parsing;
    content.document = QJsonDocument::fromJson(text, &parsing);
    if (parsing.error != QJsonParseError::NoError) {
        content.errorOffset = parsing.offset;
        return withProblem(content, Problem::NoJson, parsing.errorString());
    }
    if (!content.document.isObject())
        content.problem = Problem::NoObject;
    return content;
}

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

bool matchesNearlyAll(const QStringList &patterns)
{
    // Patterns such as "*.*" exclude only a few names.
    const auto isNearlyAll = [](const QString &pattern) {
        return pattern.contains(u'*') && std::all_of(pattern.begin(), pattern.end(), [](QChar c) {
                   return c == u'*' || c == u'?' || c == u'.';
               });
    };
    return patterns.isEmpty() || std::any_of(patterns.begin(), patterns.end(), isNearlyAll);
}

} // namespace rulefile
