#pragma once

#include <QDialogButtonBox>
#include <QMessageBox>
#include <QStringList>
#include <QTimer>
#include <QWidget>

/// Answers every message box that opens as long as the object exists, by a click on a button. A box
/// with only one button gets a click on that one. A timer on the GUI thread finds the boxes.
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

/// The widget that gets the focus from @p widget by the Tab key.
[[nodiscard]] QWidget *nextByTab(QWidget *widget);
