#pragma once

#include "windowdrag.h"

#include <QDialog>
#include <QPointer>

/// A dialog that draws its own frame: opens over the middle of its parent's window and is moved
/// with the mouse.
class FramelessDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FramelessDialog)
public:
    explicit FramelessDialog(QWidget *parent = nullptr);

    /// Shows the dialog as soon as @p page is shown, which may be now. From then on it is hidden
    /// while the page is, and comes back with it unless it has been closed: it does not lie over
    /// other pages.
    void showWith(QWidget *page);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    /// Where a press starts to move the dialog; everywhere unless a subclass says otherwise.
    [[nodiscard]] virtual bool isDragArea(QPoint position) const;

    /// Draws the white ground of a translucent dialog, with its border and rounded corners.
    void paintBackground(int radius);
    /// Draws the white ground of a translucent dialog above a shadow to its lower right.
    void paintBackgroundWithShadow(int radius);

    void showEvent(QShowEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    WindowDrag m_drag{this};
    QPointer<QWidget> m_page;
    bool m_returnsWithPage = false; ///< it is hidden for the page's sake alone
};
