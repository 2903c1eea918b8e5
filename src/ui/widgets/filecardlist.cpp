#include "filecardlist.h"

#include "filecard.h"
#include "keys.h"
#include "largefilemodel.h"
#include "theme.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int cardSpacing = 8;
constexpr int rowHeight = FileCard::cardHeight + cardSpacing;
constexpr int gapToScrollBar = 8;

// Whether the widget has the focus, or gets it when its window becomes active.
bool isFocusWidget(const QWidget *widget)
{
    return widget->window()->focusWidget() == widget;
}

} // namespace

FileCardList::FileCardList(LargeFileModel *model, QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_model(model)
{
    setObjectName("fileCardList"_L1);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // the cards take the focus
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setStyleSheet(theme::fileCardList());
    viewport()->setAutoFillBackground(false);
    verticalScrollBar()->setSingleStep(1);
    connect(model, &LargeFileModel::filesReplaced, this, &FileCardList::onFilesReplaced);
    connect(model, &LargeFileModel::rowsRemoved, this, &FileCardList::onRowsRemoved);
}

FileCardList::~FileCardList() = default;

void FileCardList::onFilesReplaced()
{
    rebindCards(0, 0);
}

// The rows after the removed ones move up. The file at the top of the list stays there. The focus
// stays with its file; when that file was removed, the next file gets the focus.
void FileCardList::onRowsRemoved(const QList<int> &rows)
{
    const auto newRow = [&rows](int row) {
        const auto removed = std::lower_bound(rows.cbegin(), rows.cend(), row) - rows.cbegin();
        return row - static_cast<int>(removed);
    };
    rebindCards(newRow(topRow()), std::min(newRow(m_currentRow), m_model->rowCount() - 1));
}

// All cards are unbound first, because each row number now means another file.
void FileCardList::rebindCards(int top, int current)
{
    const bool hadFocus = std::any_of(m_cards.cbegin(), m_cards.cend(), [](const BoundCard &bound) {
        return isFocusWidget(bound.card->checkBox());
    });
    for (BoundCard &bound : m_cards)
        bound.row = -1;
    updateRange();
    verticalScrollBar()->setValue(top);
    arrangeCards();
    m_currentRow = std::max(current, 0);
    if (hadFocus && m_model->rowCount() > 0)
        focusRow(m_currentRow, Qt::OtherFocusReason);
    else
        updateTabStop();
}

void FileCardList::updateRange()
{
    verticalScrollBar()->setPageStep(fullRowCount());
    verticalScrollBar()->setRange(0, std::max(m_model->rowCount() - fullRowCount(), 0));
}

// At least 1, so that a list lower than a row still scrolls row by row.
int FileCardList::fullRowCount() const
{
    return std::max((viewport()->height() + cardSpacing) / rowHeight, 1);
}

int FileCardList::rowCountInView() const
{
    return (viewport()->height() + rowHeight - 1) / rowHeight;
}

int FileCardList::topRow() const
{
    return verticalScrollBar()->value();
}

bool FileCardList::isInView(int row) const
{
    return row >= topRow() && row < std::min(topRow() + rowCountInView(), m_model->rowCount());
}

QList<FileCard *> FileCardList::cards() const
{
    QList<FileCard *> shown;
    for (int row = topRow(); isInView(row); ++row) {
        if (FileCard *card = cardOf(row))
            shown.append(card);
    }
    return shown;
}

FileCard *FileCardList::cardOf(int row) const
{
    const auto bound = std::find_if(m_cards.cbegin(), m_cards.cend(),
                                    [row](const BoundCard &other) { return other.row == row; });
    return bound == m_cards.cend() ? nullptr : bound->card;
}

int FileCardList::rowOf(const QObject *cardOrCheckBox) const
{
    const auto bound =
        std::find_if(m_cards.cbegin(), m_cards.cend(), [cardOrCheckBox](const BoundCard &other) {
            return cardOrCheckBox == other.card || cardOrCheckBox == other.card->checkBox();
        });
    return bound == m_cards.cend() ? -1 : bound->row;
}

void FileCardList::arrangeCards()
{
    m_isArranging = true;
    for (BoundCard &bound : m_cards) {
        const bool staysBound =
            bound.row >= 0 && (isInView(bound.row) || isFocusWidget(bound.card->checkBox()));
        if (!staysBound)
            bound.row = -1;
    }
    for (int row = topRow(); isInView(row); ++row) {
        if (cardOf(row))
            continue;
        BoundCard &bound = takeFreeCard();
        bound.row = row;
        bound.card->bind(m_model->at(row), m_model->isTicked(row));
    }
    updateTabStop();
    // All cards are placed before any is hidden. When a hidden card loses the focus, the next card
    // is then already in position.
    for (const BoundCard &bound : std::as_const(m_cards))
        placeCard(bound);
    for (const BoundCard &bound : std::as_const(m_cards)) {
        if (bound.row < 0)
            bound.card->hide();
    }
    m_isArranging = false;
}

void FileCardList::placeCard(const BoundCard &bound)
{
    if (bound.row < 0)
        return;
    // A card that only keeps the focus waits just outside the viewport. The true position of a
    // distant row could exceed the range of coordinates.
    const int y = isInView(bound.row) ? (bound.row - topRow()) * rowHeight
        : bound.row < topRow()        ? -2 * rowHeight
                                      : viewport()->height() + rowHeight;
    bound.card->setGeometry(0, y, viewport()->width() - gapToScrollBar, FileCard::cardHeight);
    bound.card->show();
}

FileCardList::BoundCard &FileCardList::takeFreeCard()
{
    const auto free = std::find_if(m_cards.begin(), m_cards.end(),
                                   [](const BoundCard &bound) { return bound.row < 0; });
    if (free != m_cards.end())
        return *free;
    auto *card = new FileCard(viewport());
    // The card must not appear before it has a position.
    card->hide();
    card->checkBox()->installEventFilter(this);
    // A late widget comes last in the tab order of the window. setTabOrder() accepts only a widget
    // that takes the focus, so the list takes it for a moment.
    setFocusPolicy(Qt::TabFocus);
    setTabOrder(this, card->checkBox());
    setFocusPolicy(Qt::NoFocus);
    m_cards.append({card, -1});
    Q_EMIT cardCreated(card);
    return m_cards.last();
}

QWidget *FileCardList::tabStop() const
{
    const FileCard *card = cardOf(m_currentRow);
    if (!card)
        card = cardOf(topRow());
    return card ? card->checkBox() : nullptr;
}

void FileCardList::updateTabStop() const
{
    for (const BoundCard &bound : m_cards)
        bound.card->checkBox()->setFocusPolicy(Qt::ClickFocus);
    if (QWidget *stop = tabStop())
        stop->setFocusPolicy(Qt::StrongFocus);
}

void FileCardList::scrollToRow(int row)
{
    const int top = std::clamp(topRow(), row - fullRowCount() + 1, row);
    verticalScrollBar()->setValue(top);
}

void FileCardList::focusRow(int row, Qt::FocusReason reason)
{
    scrollToRow(row);
    // The focus event sets the row too, but an inactive window sends none.
    m_currentRow = row;
    if (const FileCard *card = cardOf(row))
        card->checkBox()->setFocus(reason);
    arrangeCards(); // the card of the former row is free now
}

bool FileCardList::moveByKey(int row, const QKeyEvent &event)
{
    const int last = m_model->rowCount() - 1;
    int target = row + arrowStep(event);
    switch (event.key()) {
    case Qt::Key_PageUp:
        target = row - fullRowCount();
        break;
    case Qt::Key_PageDown:
        target = row + fullRowCount();
        break;
    case Qt::Key_Home:
        target = 0;
        break;
    case Qt::Key_End:
        target = last;
        break;
    default:
        if (target == row)
            return false;
    }
    focusRow(std::clamp(target, 0, last), Qt::OtherFocusReason);
    return true;
}

bool FileCardList::eventFilter(QObject *watched, QEvent *event)
{
    const int row = rowOf(watched);
    if (row < 0)
        return QAbstractScrollArea::eventFilter(watched, event);
    // While the list is being disabled, the focus passes from card to card and must not change the
    // current row.
    if (event->type() == QEvent::FocusIn && isEnabled()) {
        m_currentRow = row;
        updateTabStop();
        // Only the Tab key scrolls. A click or the activation of the window must not move the rows.
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (!m_isArranging && (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason))
            scrollToRow(row);
    } else if (event->type() == QEvent::KeyPress) {
        const auto &key = *static_cast<QKeyEvent *>(event);
        if (moveByKey(row, key))
            return true;
        if (key.key() == Qt::Key_Space)
            scrollToRow(row); // the user must see the row that the key checks
    }
    return QAbstractScrollArea::eventFilter(watched, event);
}

void FileCardList::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateRange();
    arrangeCards();
}

void FileCardList::scrollContentsBy(int, int)
{
    arrangeCards();
}
