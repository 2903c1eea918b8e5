#pragma once

#include "fileremove.h"
#include "scanresult.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <optional>

/// Says of each item that a clean removes how many bytes that has freed, each byte once where the
/// items overlap: a folder and the files in it, or one file that two rules take.
///
/// What is gone because this clean removed the folder around it, or the same path before, is
/// cleaned and no failure, but its bytes have been counted. What is gone because somebody else
/// moved the folder away is a failure.
class CleanLedger final
{
    Q_DISABLE_COPY_MOVE(CleanLedger)
public:
    explicit CleanLedger(const ScanResult &selection);

    /// Enters what became of @p item; the bytes that were freed, or nothing when it is a failure.
    [[nodiscard]] std::optional<qint64> record(const CleanItem &item,
                                               const platform::FileRemover::Outcome &outcome);

private:
    /// Returns @p size.
    qint64 addCleaned(const QString &path, qint64 size);
    [[nodiscard]] bool isBelow(const QSet<QString> &folders, const QString &path) const;

    QHash<QString, qint64> m_countedBelow; ///< bytes already counted, by folder item
    QSet<QString> m_removed;
    QSet<QString> m_partlyRemoved; ///< folders in which something stayed
};
