#pragma once

#include <QByteArray>
#include <QDialogButtonBox>
#include <QList>
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
    /// The smaller text of each box.
    [[nodiscard]] QStringList details() const { return m_details; }
    [[nodiscard]] QList<QMessageBox::Icon> icons() const { return m_icons; }

private:
    void answer(QMessageBox::StandardButton button);

    QTimer m_timer;
    QStringList m_seen;
    QStringList m_details;
    QList<QMessageBox::Icon> m_icons;
};

/// Lets the system find no program by its name as long as the object exists.
class EmptySearchPath final
{
    Q_DISABLE_COPY_MOVE(EmptySearchPath)
public:
    EmptySearchPath() { qputenv("PATH", "/no programs here"); }
    ~EmptySearchPath() { qputenv("PATH", m_before); }

private:
    const QByteArray m_before = qgetenv("PATH");
};

/// The widget that gets the focus from @p widget by the Tab key.
[[nodiscard]] QWidget *nextByTab(QWidget *widget);
