#pragma once

#include <QMessageBox>
#include <QString>

/// Message boxes in the style of the program. They show texts without markup, because a text may
/// contain a file name. Each function blocks until the user answers. GUI thread.
namespace ask {

/// Shows @p text with an OK button. @p details appear below it in smaller type.
void notice(QWidget *parent, const QString &title, const QString &text,
            QMessageBox::Icon icon = QMessageBox::Information, const QString &details = {});

/// Asks a question with Yes and No, and returns whether the answer is Yes. Return and Escape mean
/// No.
[[nodiscard]] bool question(QWidget *parent, const QString &title, const QString &text);

} // namespace ask
