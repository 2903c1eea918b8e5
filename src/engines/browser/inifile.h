#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

/// One group of an INI file with its text values. Keys are in lower case.
struct IniGroup {
    QString name;
    QMap<QString, QString> values;
};

/// The groups of an INI file in their order. Values are not interpreted: QSettings would read the
/// backslashes of a Windows path as escapes and its commas as a list.
[[nodiscard]] QList<IniGroup> parseIni(const QByteArray &content);
