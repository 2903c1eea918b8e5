#pragma once

#include "largefileinfo.h"

#include <QList>

#include <functional>

class LargeFilePage;
class QAbstractScrollArea;
class QObject;

/// Access to the records of the large-file page. No other part of the robot knows how the page
/// stores them.
namespace largefileadapter {

/// The listed files from top to bottom.
[[nodiscard]] QList<LargeFileInfo> files(LargeFilePage *page);
/// Which of the listed files are ticked, in the same order.
[[nodiscard]] QList<bool> ticks(LargeFilePage *page);
/// The number of the file that belongs at @p y of the visible part of the list.
[[nodiscard]] int rowAt(const QAbstractScrollArea *list, int y);
/// Whether the page scans or deletes.
[[nodiscard]] bool isBusy(LargeFilePage *page);

/// Runs @p call in the context of @p receiver when files were deleted, before the page reports it.
void connectDeletion(LargeFilePage *page, QObject *receiver, const std::function<void()> &call);

} // namespace largefileadapter
