#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

/// One rule of the junk rule file: where to look and which files to remove there.
struct JunkRule {
    QString id;
    QString name;
    QString description;
    QStringList paths; ///< files or folders, with placeholders and backslashes
    QStringList patterns; ///< file-name wildcards for the folders; empty matches every file
    bool defaultChecked = true;
    int riskLevel = 0;
    bool recursive = true;

    /// @p object as a rule. A member that is missing or of another type gets the default above. A
    /// list element that is not a string becomes an empty text and stays in the list.
    [[nodiscard]] static JunkRule fromJson(const QJsonObject &object);

    /// Whether the rule matches nearly every file in all folders below its locations.
    [[nodiscard]] bool matchesWholeTrees() const;
};
