#include "ask.h"

#include "boxes.h"

namespace {

int show(QWidget *parent, QMessageBox::Icon icon, const QString &title, const QString &text,
         const QString &details, QMessageBox::StandardButtons buttons,
         QMessageBox::StandardButton defaultButton)
{
    QMessageBox box(icon, title, text, buttons, parent);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(details);
    box.setDefaultButton(defaultButton);
    box.setStyleSheet(theme::messageBox());
    return box.exec();
}

} // namespace

namespace ask {

void notice(QWidget *parent, const QString &title, const QString &text, QMessageBox::Icon icon,
            const QString &details)
{
    show(parent, icon, title, text, details, QMessageBox::Ok, QMessageBox::Ok);
}

bool question(QWidget *parent, const QString &title, const QString &text)
{
    return show(parent, QMessageBox::Question, title, text, {}, QMessageBox::Yes | QMessageBox::No,
                QMessageBox::No)
        == QMessageBox::Yes;
}

} // namespace ask
