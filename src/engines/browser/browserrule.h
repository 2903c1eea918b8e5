#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

/// One rule of the browser rule file: a kind of data and where a profile keeps it.
struct BrowserRule {
    QString id;
    QString name;
    QString description;
    QString subPath; ///< folder below a Chromium profile; empty for the profile itself
    QString firefoxSubPath; ///< not used by a scan: FirefoxScan has its own mapping
    QStringList patterns; ///< file-name wildcards for Chromium profiles; empty matches everything
    QStringList firefoxPatterns; ///< not used by a scan
    bool defaultChecked = true;
    int riskLevel = 0;

    /// @p object as a rule. A member that is missing or of another type gets the default above.
    [[nodiscard]] static BrowserRule fromJson(const QJsonObject &object);

    /// Whether the rule matches nearly everything in its folder.
    [[nodiscard]] bool matchesEverything() const;
};
