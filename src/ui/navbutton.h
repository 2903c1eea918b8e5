#pragma once

#include <QWidget>

class QLabel;
class SvgLabel;

/// An entry of the navigation column: an icon and a text. It paints its own highlight and focus
/// frame. The keyboard and the mouse press it.
class NavButton final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(NavButton)
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked NOTIFY checkedChanged)
public:
    /// @p iconPath is an SVG resource. The icon stays empty when the resource is missing.
    NavButton(const QString &text, const QString &iconPath, QWidget *parent = nullptr);

    [[nodiscard]] QString text() const;
    [[nodiscard]] bool isChecked() const { return m_isChecked; }
    void setChecked(bool checked);
    /// Aligns icon and text to the centre of the button, or to its left end.
    void setCentered(bool centered);

Q_SIGNALS:
    void clicked();
    void checkedChanged(bool checked);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void updateLook();

    QString m_iconPath;
    SvgLabel *m_icon;
    QLabel *m_text;
    bool m_isChecked = false;
    bool m_isHovered = false;
    bool m_isPressed = false;
};
