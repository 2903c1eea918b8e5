#include "emptypage.h"

#include "theme.h"

#include <QLabel>
#include <QVBoxLayout>

EmptyPage::EmptyPage(const QString &title, QWidget *parent)
    : QWidget(parent)
{
    auto *label = new QLabel(title, this);
    label->setStyleSheet(theme::label(theme::text, 24, 600));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 8, 28, 20);
    layout->addWidget(label, 0, Qt::AlignTop);
}
