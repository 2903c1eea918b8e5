#pragma once

#include <QBitArray>
#include <QDateTime>
#include <QList>
#include <QMetaType>
#include <QString>
#include <Qt>

#include <atomic>

/// Levels of CleanItem::riskLevel and CleanCategory::riskLevel.
enum RiskLevel { LowRisk = 0, MediumRisk = 1, HighRisk = 2 };

/// Whether a registry entry is a key or a value. A key and a value of its parent key may share a
/// name.
enum class RegistryEntry : quint8 { Unknown, Key, Value };

/// One removable thing: a file, a folder that a walk found, a registry entry.
///
/// There may be millions of them. The small members stand together, and a name that ends the path
/// shares its memory.
struct CleanItem {
    CleanItem(const QString &itemName, const QString &itemPath, qint64 itemSize);

    QString name; ///< of a file: without its folder
    QString path; ///< absolute; what the engine deletes
    qint64 size; ///< bytes; 0 when the item has no size
    int riskLevel = LowRisk;
    bool checked = true;
    bool isDirectory = false;
    /// Of an entry of HKEY_CLASSES_ROOT: the scan read it from the user's hive, not the machine's.
    bool isUserClass = false;
    RegistryEntry registryEntry = RegistryEntry::Unknown;
    QString description;
    QString registryRoot; ///< such as "HKEY_CLASSES_ROOT"; empty for files
    QString registryKey; ///< below the root; empty for files
};
// A long list grows in its place.
Q_DECLARE_TYPEINFO(CleanItem, Q_RELOCATABLE_TYPE);

/// How much is checked.
struct Selection {
    int count = 0; ///< items
    qint64 size = 0; ///< bytes

    Selection &operator+=(const Selection &other);
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

    /// The number and the size of the checked items, in one pass.
    [[nodiscard]] Selection checkedItems() const;
    [[nodiscard]] int checkedCount() const { return checkedItems().count; }
    [[nodiscard]] qint64 checkedSize() const { return checkedItems().size; } ///< bytes
    [[nodiscard]] qint64 totalSize() const; ///< bytes, whether checked or not
    /// The state for a check box of the category: whether a clean would remove all, some or none of
    /// its items. A category without items has the state of its own mark.
    [[nodiscard]] Qt::CheckState checkState() const { return checkState(checkedCount()); }
    /// The same when @p count items are checked.
    [[nodiscard]] Qt::CheckState checkState(int count) const;
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
    QString browserId; ///< the browser that has the data; empty for other categories
    QString ruleId; ///< of browser data: the id of the rule, without the browser
    QString ruleName; ///< of browser data: the rule's name, without the browser's
};

/// What a scan found. Its check marks say what a clean is to remove. An engine owns its last
/// result.
///
/// Selection has two levels: an item counts as checked only within a checked category.
struct ScanResult {
    [[nodiscard]] int totalCount() const;
    [[nodiscard]] qint64 totalSize() const; ///< bytes
    /// The number and the size of what is checked, in one pass.
    [[nodiscard]] Selection selection() const;
    [[nodiscard]] int checkedCount() const { return selection().count; }
    [[nodiscard]] qint64 checkedSize() const { return selection().size; } ///< bytes

    QList<CleanCategory> categories;
    QDateTime scanTime = QDateTime::currentDateTime(); ///< local; overwritten when a scan ends
};

Q_DECLARE_METATYPE(ScanResult)

/// Remembers what is checked in a result. The result's check marks may change then: only records()
/// takes long among a million items, and it may be called on another thread. Until it returns,
/// nothing may add to the result's lists or take from them: that would copy all their items first.
class CheckedRecords final
{
public:
    explicit CheckedRecords(const ScanResult &result);

    /// A copy of the result that holds only what was checked, in the same order. It shares no
    /// record with the result. Empty when @p stopRequested is set meanwhile.
    [[nodiscard]] ScanResult records(const std::atomic_bool &stopRequested) const;

private:
    ScanResult m_result; ///< its items are those of the result, so no mark of theirs is read
    QList<QBitArray> m_marks; ///< of the items of each category in m_result
};

/// @p bytes for display, in binary units: "0 B", "1.5 KB", "1.0 MB", "3.00 GB". Negative counts
/// show as "0 B"; there is no unit above GB.
[[nodiscard]] QString formatSize(qint64 bytes);
