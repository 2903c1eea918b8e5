#pragma once

#include <QWidget>

class ElidedLabel;
class QCheckBox;
class QLabel;
struct CleanCategory;
struct CleanItem;

/// A row of a category: check box, name, path, risk and size of an item. CategoryWidget owns it.
/// GUI thread.
///
/// Bound to the item @p index of a category, which outlives the row.
class CleanItemWidget final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CleanItemWidget)
public:
    CleanItemWidget(CleanCategory *category, qsizetype index, QWidget *parent = nullptr);

    [[nodiscard]] bool isChecked() const;
    /// Sets the check box. Emits no signal and does not change the record.
    void showChecked(bool checked);
    /// Writes the state of the check box into the record.
    void storeChecked();
    void setShowSizes(bool show);

Q_SIGNALS:
    void checkChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] const CleanItem &item() const;

    CleanCategory *m_category;
    qsizetype m_index;
    QCheckBox *m_checkBox;
    ElidedLabel *m_name;
    ElidedLabel *m_path;
    QLabel *m_risk;
    QLabel *m_size;
    bool m_isHovered = false;
};
