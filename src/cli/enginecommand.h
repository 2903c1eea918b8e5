#pragma once

#include <QStringList>

namespace cli {

struct EngineOptions {
    bool items = false;
    bool json = false;
    bool yes = false;
    QStringList categories;
    QString backup; ///< the file to write; empty when the option was not given
    bool noBackup = false;
    QStringList browsers; ///< names as the user gave them; empty means all
};

/// "scan ENGINE" and "clean ENGINE"; returns the exit status.
[[nodiscard]] int runEngine(const QString &command, const QString &engine,
                            const EngineOptions &options);

} // namespace cli
