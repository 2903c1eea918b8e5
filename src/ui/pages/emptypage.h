#pragma once

#include <QWidget>

/// A page that shows its title only.
class EmptyPage final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(EmptyPage)
public:
    explicit EmptyPage(const QString &title, QWidget *parent = nullptr);
};
