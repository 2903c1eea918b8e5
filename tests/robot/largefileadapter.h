#pragma once

#include "largefileinfo.h"

#include <QList>

#include <functional>

class LargeFilePage;
class QAbstractScrollArea;
class QObject;

/// The only part of the robot that knows how the page of the large files keeps what it lists.
namespace largefileadapter {

/// The listed files from top to bottom.
[[nodiscard]] QList<LargeFileInfo> files(LargeFilePage *page);
/// Which of them are ticked.
[[nodiscard]] QList<bool> ticks(LargeFilePage *page);
/// Which of them belongs at @p y of the visible part of the list.
[[nodiscard]] int rowAt(const QAbstractScrollArea *list, int y);
/// Whether the page scans or deletes.
[[nodiscard]] bool isBusy(LargeFilePage *page);

/// Has @p receiver called when files have been deleted, before the page tells of it.
void connectDeletion(LargeFilePage *page, QObject *receiver, const std::function<void()> &call);

} // namespace largefileadapter
