#pragma once

#include <QPointer>
#include <QWidget>

class ItemDetailDialog;
class QCheckBox;
class QLabel;
class QPushButton;
struct CleanCategory;
struct CleanItem;

/// One kind of data of one browser: a row with a check box, how much there is, and a button for the
/// details. Bound to a record of the engine's result.
class BrowserSubItem final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BrowserSubItem)
public:
    explicit BrowserSubItem(CleanCategory *category, QWidget *parent = nullptr);
    ~BrowserSubItem() override;

    [[nodiscard]] const CleanCategory &category() const { return *m_category; }
    /// Partly checked when some of the items are ticked and some are not.
    [[nodiscard]] Qt::CheckState checkState() const;
    /// Ticks or unticks the record with all its items, without a signal.
    void setChecked(bool checked);
    /// Whether something is not ticked that is not guarded.
    [[nodiscard]] bool hasMoreToTick() const;
    /// Ticks the record and its items, but for those that are guarded: these are ticked with this
    /// row alone, by somebody who sees which kind of data it is.
    void tickUnguarded();
    /// Takes the category out of every clean, or puts it back with the ticks that it had. Taken
    /// out, it cannot be ticked.
    void setIncluded(bool included);
    void setShowSizes(bool show);
    [[nodiscard]] QList<QWidget *> focusChain() const;

public Q_SLOTS:
    /// Opens the dialog that lists every item.
    void showDetails();
    [[nodiscard]] bool isGuarded(const CleanItem &item) const;

Q_SIGNALS:
    void checkChanged();

private:
    void onStateChanged(int state);
    void showCheckState();

    CleanCategory *m_category;
    bool m_isIncluded = true;
    bool m_wasChecked = false; ///< before it was taken out
    QCheckBox *m_checkBox;
    QLabel *m_size;
    QPushButton *m_detailsButton;
    QPointer<ItemDetailDialog> m_details;
};
