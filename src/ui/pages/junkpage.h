#pragma once

#include "basepage.h"

/// The page of the junk cleaner. MainWindow owns it. GUI thread.
class JunkPage final : public BasePage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(JunkPage)
public:
    explicit JunkPage(QWidget *parent = nullptr);

    void retranslateUi() override;
};
