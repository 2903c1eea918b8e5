#pragma once

#include <QDateTime>
#include <QList>
#include <QMetaType>
#include <QString>
#include <Qt>

/// Levels of CleanItem::riskLevel and CleanCategory::riskLevel.
enum RiskLevel { LowRisk = 0, MediumRisk = 1, HighRisk = 2 };

/// Which of the two a registry entry is: a key and a value of the key above it may share a name.
enum class RegistryEntry : quint8 { Unknown, Key, Value };

/// One removable thing: a file, a folder that a walk found, a registry entry.
struct CleanItem {
    CleanItem(const QString &itemName, const QString &itemPath, qint64 itemSize)
        : name(itemName)
        , path(itemPath)
        , size(itemSize)
    {
    }

    QString name; ///< for files without the folder
    QString path; ///< absolute; what the engine deletes
    qint64 size; ///< bytes; 0 where the thing has no size
    bool checked = true;
    int riskLevel = LowRisk;
    QString description;
    bool isDirectory = false;
    QString registryRoot; ///< such as "HKEY_CLASSES_ROOT"; empty for files
    QString registryKey; ///< below the root; empty for files
    bool isUserClass =
        false; ///< of HKEY_CLASSES_ROOT: read from the user's hive, not the machine's
    RegistryEntry registryEntry = RegistryEntry::Unknown;
};

/// One group of items: a junk rule, a kind of browser data, a registry check.
struct CleanCategory {
    CleanCategory(const QString &categoryId, const QString &categoryName,
                  const QString &categoryDescription)
        : id(categoryId)
        , name(categoryName)
        , description(categoryDescription)
    {
    }

    [[nodiscard]] int checkedCount() const;
    [[nodiscard]] qint64 checkedSize() const; ///< bytes
    [[nodiscard]] qint64 totalSize() const; ///< bytes, whether checked or not
    /// What a check box in front of the category shows: how many of its items a clean would take.
    /// Without items it is the category's own mark.
    [[nodiscard]] Qt::CheckState checkState() const;
    /// Sets every item and then the category itself.
    void setChecked(bool on);

    QString id; ///< stable; also selects the icon
    QString name;
    QString description;
    QString icon;
    bool checked = true;
    bool expanded = false;
    int riskLevel = LowRisk;
    QList<CleanItem> items; ///< in the order in which the scan found them
    QString browserId; ///< whose data it is; empty for what is no browser's
    QString ruleId; ///< of a browser's data: the rule, the same for every browser
    QString ruleName; ///< of a browser's data: the name without the browser's
};

/// What a scan found, and with its check marks what a clean is to remove.
///
/// Selection has two levels: an item counts as checked only within a checked category.
struct ScanResult {
    [[nodiscard]] int totalCount() const;
    [[nodiscard]] qint64 totalSize() const; ///< bytes
    [[nodiscard]] int checkedCount() const;
    [[nodiscard]] qint64 checkedSize() const; ///< bytes

    /// A copy that shares no record with this one and holds only what is checked, in the same
    /// order.
    [[nodiscard]] ScanResult checkedOnly() const;

    QList<CleanCategory> categories;
    QDateTime scanTime = QDateTime::currentDateTime(); ///< local; overwritten when a scan ends
};

Q_DECLARE_METATYPE(ScanResult)

/// @p bytes for display, in binary units: "0 B", "1.5 KB", "1.0 MB", "3.00 GB". Negative counts
/// show as "0 B"; there is no unit above GB.
[[nodiscard]] QString formatSize(qint64 bytes);
