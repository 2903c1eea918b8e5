#pragma once

#include "framelessdialog.h"

/// Shows name, version and functions of the program. Modal. GUI thread.
class AboutDialog final : public FramelessDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AboutDialog)
public:
    explicit AboutDialog(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
