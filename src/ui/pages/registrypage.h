#pragma once

#include "basepage.h"

class RegistryCleaner;

/// The page of the registry cleaner. It shows numbers of entries instead of bytes, and offers a
/// backup before it cleans. MainWindow owns it. GUI thread.
class RegistryPage final : public BasePage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RegistryPage)
public:
    explicit RegistryPage(QWidget *parent = nullptr);

    void startClean() override;
    void onCleanFinished(qint64 totalCleaned, int itemsCleaned) override;
    void retranslateUi() override;

private:
    void warnOfMissingBackup(const QString &path, const QString &reason, int itemsCleaned);

    RegistryCleaner *m_cleaner; ///< not owned
};
