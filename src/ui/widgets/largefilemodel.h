#pragma once

#include "largefileinfo.h"

#include <QBitArray>
#include <QList>
#include <QObject>

/// The files in the result list, row by row, and which of them are ticked. It is the only place
/// that holds either: the cards on the screen and the deletion both refer to its rows.
///
/// LargeFilePage owns it. GUI thread. The records are shared with the result of the scanner. A row
/// adds one bit.
class LargeFileModel final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LargeFileModel)
public:
    using QObject::QObject;

    /// Replaces all rows. No row is then ticked.
    void setFiles(const QList<LargeFileInfo> &files);
    [[nodiscard]] int rowCount() const { return static_cast<int>(m_files.size()); }
    [[nodiscard]] const LargeFileInfo &at(int row) const { return m_files.at(row); }

    [[nodiscard]] bool isTicked(int row) const { return m_ticked.testBit(row); }
    void setTicked(int row, bool ticked);
    [[nodiscard]] int tickedCount() const { return m_tickedCount; }
    /// In bytes.
    [[nodiscard]] qint64 tickedSize() const { return m_tickedSize; }
    /// The ticked rows in ascending order.
    [[nodiscard]] QList<int> tickedRows() const;

    /// Removes @p rows, which must be in ascending order. The other rows keep their order and their
    /// ticks.
    void removeRows(const QList<int> &rows);

Q_SIGNALS:
    /// All rows have changed.
    void filesReplaced();
    /// Rows were removed. @p rows are their former numbers in ascending order.
    void rowsRemoved(const QList<int> &rows);

private:
    QList<LargeFileInfo> m_files;
    QBitArray m_ticked; ///< one bit for each row
    int m_tickedCount = 0;
    qint64 m_tickedSize = 0;
};
