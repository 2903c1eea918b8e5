#include "inifile.h"

using namespace Qt::StringLiterals;

QList<IniGroup> parseIni(const QByteArray &content)
{
    QList<IniGroup> groups;
    QString text = QString::fromUtf8(content);
    if (text.startsWith(QChar::ByteOrderMark))
        text.remove(0, 1);
    const QStringList lines = text.replace(u'\r', u'\n').split(u'\n', Qt::SkipEmptyParts);
    for (const QString &rawLine : lines) {
        const QString line = rawLine.trimmed();
        if (line.startsWith(u';') || line.startsWith(u'#'))
            continue;
        if (line.startsWith(u'[') && line.endsWith(u']')) {
            groups.append({line.mid(1, line.size() - 2).trimmed(), {}});
            continue;
        }
        const qsizetype equals = line.indexOf(u'=');
        if (equals > 0 && !groups.isEmpty())
            groups.last().values.insert(line.left(equals).trimmed().toLower(),
                                        line.mid(equals + 1).trimmed());
    }
    return groups;
}
