#pragma once

#include <QList>
#include <QWidget>

class QAbstractButton;

/// Something in a page's list of results: a header, and what it holds once it is expanded. It is
/// bound to records inside the engine's result, which outlive it and into which the ticks are
/// written.
class ResultWidget : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ResultWidget)
public:
    using QWidget::QWidget;

    /// The controls that take the keyboard focus, in the order in which they stand.
    [[nodiscard]] virtual QList<QWidget *> focusChain() const = 0;
    /// Whether bytes are told beside the item counts.
    virtual void setShowSizes(bool show) = 0;
    [[nodiscard]] bool isExpanded() const { return m_isExpanded; }

public Q_SLOTS:
    void toggleExpanded();

Q_SIGNALS:
    void selectionChanged();

protected:
    /// Names what expands and collapses: a click on @p header, a click on @p button, and on the
    /// button the right and the left arrow key. Before anything is told of the button, so that
    /// screen readers know it as one that expands.
    void setExpander(QWidget *header, QAbstractButton *button);
    /// Shows or hides the content.
    virtual void showExpanded(bool expanded) = 0;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void describeExpander();

    QWidget *m_header = nullptr;
    QAbstractButton *m_expander = nullptr;
    bool m_isExpanded = false;
};
