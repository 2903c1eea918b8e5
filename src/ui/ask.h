#pragma once

#include <QMessageBox>
#include <QString>

/// Message boxes in the look of the program. Texts are shown as they stand, never as markup: they
/// may name files. GUI thread; each waits for the answer.
namespace ask {

/// Tells @p text with one button to close. @p details stand below it in smaller type.
void notice(QWidget *parent, const QString &title, const QString &text,
            QMessageBox::Icon icon = QMessageBox::Information, const QString &details = {});

/// Whether the user says Yes. What the Return and the Escape key answer is No.
[[nodiscard]] bool question(QWidget *parent, const QString &title, const QString &text);

} // namespace ask
