#pragma once

#include "basepage.h"

class RegistryCleaner;

/// The page of the registry cleaner. It speaks in counts, and asks for a backup before it cleans.
class RegistryPage final : public BasePage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RegistryPage)
public:
    explicit RegistryPage(QWidget *parent = nullptr);

    void startClean() override;
    void retranslateUi() override;

private:
    RegistryCleaner *m_cleaner; ///< not owned
};
