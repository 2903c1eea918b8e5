#pragma once

#include "largefileinfo.h"

#include <QBitArray>
#include <QList>
#include <QObject>

/// The files that the list of results shows, row by row, and which of them are ticked: the one
/// place that knows either. What is on the screen is bound to its rows, and what is deleted comes
/// from it.
///
/// GUI thread. The records share their data with the list that they were taken from; beside them a
/// row takes a bit.
class LargeFileModel final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LargeFileModel)
public:
    using QObject::QObject;

    /// Replaces all rows; nothing is ticked then.
    void setFiles(const QList<LargeFileInfo> &files);
    [[nodiscard]] int rowCount() const { return static_cast<int>(m_files.size()); }
    [[nodiscard]] const LargeFileInfo &at(int row) const { return m_files.at(row); }

    [[nodiscard]] bool isTicked(int row) const { return m_ticked.testBit(row); }
    void setTicked(int row, bool ticked);
    [[nodiscard]] int tickedCount() const { return m_tickedCount; }
    [[nodiscard]] qint64 tickedSize() const { return m_tickedSize; } ///< bytes
    /// In ascending order.
    [[nodiscard]] QList<int> tickedRows() const;

    /// Drops @p rows, which ascend; the others keep their order and their ticks.
    void removeRows(const QList<int> &rows);

Q_SIGNALS:
    /// All rows are others now.
    void filesReplaced();
    /// The rows of before, in ascending order, that are no more.
    void rowsRemoved(const QList<int> &rows);

private:
    QList<LargeFileInfo> m_files;
    QBitArray m_ticked; ///< by row
    int m_tickedCount = 0;
    qint64 m_tickedSize = 0;
};
