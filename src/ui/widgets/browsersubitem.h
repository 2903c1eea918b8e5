#pragma once

#include <QPointer>
#include <QWidget>

class ItemDetailDialog;
class QCheckBox;
class QLabel;
class QPushButton;
struct CleanCategory;
struct CleanItem;

/// One kind of data of one browser: a row with a check box, the amount of data, and a button for
/// the details. Bound to a record inside the result of the engine, which outlives the row.
/// BrowserGroupWidget owns it. GUI thread.
///
/// An item is guarded when its risk is higher than the risk of its category.
class BrowserSubItem final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BrowserSubItem)
public:
    explicit BrowserSubItem(CleanCategory *category, QWidget *parent = nullptr);
    ~BrowserSubItem() override;

    [[nodiscard]] const CleanCategory &category() const { return *m_category; }
    /// Partly checked when only some of the items are checked.
    [[nodiscard]] Qt::CheckState checkState() const;
    /// Checks or unchecks the record with all its items. Emits no signal.
    void setChecked(bool checked);
    /// Whether an item is unchecked and not guarded.
    [[nodiscard]] bool hasMoreToTick() const;
    /// Checks the record and all its items except the guarded ones. Guarded items are checked only
    /// by this row, where the user sees the kind of data.
    void tickUnguarded();
    /// Excludes the category from a clean, or includes it again with its former check states. The
    /// user cannot check an excluded category.
    void setIncluded(bool included);
    void setShowSizes(bool show);
    [[nodiscard]] QList<QWidget *> focusChain() const;

public Q_SLOTS:
    /// Opens the dialog that lists all items.
    void showDetails();

Q_SIGNALS:
    void checkChanged();

private:
    [[nodiscard]] bool isGuarded(const CleanItem &item) const;
    void onStateChanged(int state);
    void showCheckState();

    CleanCategory *m_category;
    bool m_isIncluded = true;
    bool m_wasChecked = false; ///< the state before the category was excluded
    QCheckBox *m_checkBox;
    QLabel *m_size;
    QPushButton *m_detailsButton;
    QPointer<ItemDetailDialog> m_details;
};
