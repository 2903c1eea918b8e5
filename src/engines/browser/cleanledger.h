#pragma once

#include "fileremove.h"
#include "scanresult.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <optional>

/// Tells for each removed item how many bytes its removal has freed. Items may overlap: a folder
/// and the files in it, or one file that two rules list. Each byte is counted once.
///
/// BrowserCleaner makes one for each clean, on its worker. A missing item counts as cleaned when
/// this clean has removed it before, or has removed a folder around it wholly or in part. Its bytes
/// count only if they were not counted with the folder. An item that is missing for another reason,
/// such as a folder that somebody else has moved, is a failure.
class CleanLedger final
{
    Q_DISABLE_COPY_MOVE(CleanLedger)
public:
    explicit CleanLedger(const ScanResult &selection);

    /// Records the outcome for @p item. Returns the freed bytes, or nothing for a failure.
    [[nodiscard]] std::optional<qint64> record(const CleanItem &item,
                                               const platform::FileRemover::Outcome &outcome);

private:
    /// Marks @p path as removed and counts its bytes for the folders around it. Returns @p size.
    qint64 addCleaned(const QString &path, qint64 size);
    [[nodiscard]] bool isBelow(const QSet<QString> &folders, const QString &path) const;

    QHash<QString, qint64> m_countedBelow; ///< for each folder item: bytes already counted below it
    QSet<QString> m_removed;
    QSet<QString> m_partlyRemoved; ///< folders that were not removed completely
};
