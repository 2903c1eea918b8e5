#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

/// A group of an INI file with its plain text values; keys are in lower case.
struct IniGroup {
    QString name;
    QMap<QString, QString> values;
};

/// The groups of an INI file in their order. Values are taken as they stand: to QSettings the
/// backslashes of a Windows path would be escapes and its commas a list.
[[nodiscard]] QList<IniGroup> parseIni(const QByteArray &content);
