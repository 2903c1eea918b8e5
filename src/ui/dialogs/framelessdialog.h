#pragma once

#include "windowdrag.h"

#include <QDialog>
#include <QPointer>

/// The base of the dialogs without a system frame. It opens over the middle of the parent window
/// and moves with the mouse. GUI thread.
class FramelessDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FramelessDialog)
public:
    explicit FramelessDialog(QWidget *parent = nullptr);

    /// Shows the dialog now, or as soon as @p page is shown. The dialog then hides and returns with
    /// the page, so that it does not cover other pages. A dialog that was closed does not return.
    void showWith(QWidget *page);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    /// Whether a press at @p position starts a drag. The default is everywhere.
    [[nodiscard]] virtual bool isDragArea(QPoint position) const;

    /// Paints the white background of a translucent dialog, with its border and rounded corners.
    void paintBackground(int radius);
    /// Paints the white background of a translucent dialog, with a shadow to its lower right.
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
    bool m_returnsWithPage = false; ///< hidden only because its page is hidden
};
