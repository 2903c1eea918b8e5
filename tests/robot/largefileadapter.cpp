#include "largefileadapter.h"

#include "filecard.h"
#include "largefilemodel.h"
#include "largefilepage.h"

#include <QAbstractScrollArea>
#include <QScrollBar>

namespace largefileadapter {

namespace {

constexpr int rowHeight = FileCard::cardHeight + 8;

} // namespace

QList<LargeFileInfo> files(LargeFilePage *page)
{
    QList<LargeFileInfo> found;
    for (int row = 0; row < page->model()->rowCount(); ++row)
        found.append(page->model()->at(row));
    return found;
}

QList<bool> ticks(LargeFilePage *page)
{
    QList<bool> found;
    for (int row = 0; row < page->model()->rowCount(); ++row)
        found.append(page->model()->isTicked(row));
    return found;
}

// The list scrolls by rows.
int rowAt(const QAbstractScrollArea *list, int y)
{
    return list->verticalScrollBar()->value() + y / rowHeight;
}

bool isBusy(LargeFilePage *page)
{
    return page->scanner()->isRunning() || page->scanner()->isDeleting();
}

void connectDeletion(LargeFilePage *page, QObject *receiver, const std::function<void()> &call)
{
    QObject::connect(page->model(), &LargeFileModel::rowsRemoved, receiver, call);
}

} // namespace largefileadapter
