#include "largefilemodel.h"

#include <exception>
#include <thread>
#include <utility>

namespace {

// Freeing a million records takes noticeable time. It runs on another thread, unless the records
// are still shared. If the system makes no thread, they are freed here.
void discard(QList<LargeFileInfo> files)
{
    if (files.isEmpty())
        return;
    try {
        std::thread([old = std::move(files)]() mutable { old.clear(); }).detach();
    } catch (const std::exception &) {
    }
}

} // namespace

void LargeFileModel::setFiles(const QList<LargeFileInfo> &files)
{
    discard(std::exchange(m_files, files));
    m_ticked.fill(false, m_files.size());
    m_tickedCount = 0;
    m_tickedSize = 0;
    Q_EMIT filesReplaced();
}

void LargeFileModel::setTicked(int row, bool ticked)
{
    if (isTicked(row) == ticked)
        return;
    m_ticked.setBit(row, ticked);
    m_tickedCount += ticked ? 1 : -1;
    m_tickedSize += ticked ? at(row).size : -at(row).size;
}

QList<int> LargeFileModel::tickedRows() const
{
    QList<int> rows;
    rows.reserve(m_tickedCount);
    for (int row = 0; rows.size() < m_tickedCount; ++row) {
        if (isTicked(row))
            rows.append(row);
    }
    return rows;
}

void LargeFileModel::removeRows(const QList<int> &rows)
{
    if (rows.isEmpty())
        return;
    for (const int row : rows)
        setTicked(row, false);
    QBitArray ticked(m_files.size() - rows.size());
    auto nextRemoved = rows.cbegin();
    int keptRow = rows.constFirst();
    for (int row = 0; row < keptRow; ++row)
        ticked.setBit(row, isTicked(row));
    for (int row = keptRow; row < rowCount(); ++row) {
        if (nextRemoved != rows.cend() && *nextRemoved == row) {
            ++nextRemoved;
            continue;
        }
        ticked.setBit(keptRow, isTicked(row));
        std::swap(m_files[keptRow], m_files[row]);
        ++keptRow;
    }
    QList<LargeFileInfo> removed = m_files.sliced(keptRow);
    m_files.resize(keptRow);
    m_ticked = ticked;
    discard(std::move(removed));
    Q_EMIT rowsRemoved(rows);
}
