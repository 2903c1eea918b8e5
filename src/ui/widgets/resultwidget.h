#pragma once

#include "scanresult.h"

#include <QList>
#include <QWidget>

class QAbstractButton;

/// The base of the widgets in a result list: a header and, when expanded, its content. It is bound
/// to records inside the result of the engine. The records outlive it, and the check states are
/// written into them. The page owns it. GUI thread.
class ResultWidget : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ResultWidget)
public:
    using QWidget::QWidget;

    /// The controls that take the keyboard focus, in their visible order.
    [[nodiscard]] virtual QList<QWidget *> focusChain() const = 0;
    /// What is checked of its records.
    [[nodiscard]] virtual Selection selection() const = 0;
    /// Sets whether sizes are shown beside the item counts.
    virtual void setShowSizes(bool show) = 0;
    [[nodiscard]] bool isExpanded() const { return m_isExpanded; }

public Q_SLOTS:
    void toggleExpanded();

Q_SIGNALS:
    void selectionChanged();

protected:
    /// Sets the controls that expand and collapse: a click on @p header, a click on @p button, and
    /// the right and left arrow keys on @p button. Call it before any other setter of the button.
    /// Screen readers then learn from the start that the button expands.
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
