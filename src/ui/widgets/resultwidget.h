#pragma once

#include <QList>
#include <QWidget>

/// Something in a page's list of results. It is bound to records inside the engine's result, which
/// outlive it and into which the ticks are written.
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

Q_SIGNALS:
    void selectionChanged();
};
