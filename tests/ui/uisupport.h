#pragma once

#include <QDialogButtonBox>
#include <QMessageBox>
#include <QStringList>
#include <QTimer>
#include <QWidget>

/// Answers the message boxes that open while it lives, as a user would: by clicking a button,
/// or the only one that there is.
class MessageBoxes final
{
    Q_DISABLE_COPY_MOVE(MessageBoxes)
public:
    explicit MessageBoxes(QMessageBox::StandardButton answer);

    /// "title|text" of each box that was answered.
    [[nodiscard]] QStringList seen() const { return m_seen; }

private:
    void answer(QMessageBox::StandardButton button);

    QTimer m_timer;
    QStringList m_seen;
};

/// The widget to which the tabulator key goes from @p widget.
[[nodiscard]] QWidget *nextByTab(QWidget *widget);
