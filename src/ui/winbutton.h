#pragma once

#include <QPushButton>

/// A button of the title bar. It paints its own glyph.
class WinButton final : public QPushButton
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WinButton)
public:
    enum Type { Minimize = 0, Maximize = 1, Restore = 2, Close = 3, Menu = 4 };

    explicit WinButton(Type type, QWidget *parent = nullptr);

    [[nodiscard]] Type type() const { return m_type; }
    /// Changes the glyph and repaints.
    void setType(Type type);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Type m_type;
};
