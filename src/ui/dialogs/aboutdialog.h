#pragma once

#include "framelessdialog.h"

/// A card with the program's name, version and what it can do.
class AboutDialog final : public FramelessDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AboutDialog)
public:
    explicit AboutDialog(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
