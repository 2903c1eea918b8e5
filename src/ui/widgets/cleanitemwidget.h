#pragma once

#include <QWidget>

class ElidedLabel;
class QCheckBox;
class QLabel;
struct CleanCategory;
struct CleanItem;

/// One row of a category: check box, name, path, risk and size of one item.
///
/// Bound to the record number @p index of a category that outlives the widget.
class CleanItemWidget final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CleanItemWidget)
public:
    CleanItemWidget(CleanCategory *category, qsizetype index, QWidget *parent = nullptr);

    [[nodiscard]] bool isChecked() const;
    /// Sets the check box without a signal and without touching the record.
    void showChecked(bool checked);
    /// Copies the check box into the record.
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
