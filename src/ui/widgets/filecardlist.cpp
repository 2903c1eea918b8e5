#include "filecardlist.h"

#include "filecard.h"
#include "theme.h"

#include <QElapsedTimer>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int rowHeight = FileCard::cardHeight + 8; // the room between two cards
constexpr int roomForScrollBar = 8;
constexpr qsizetype cardsAtOnce = 20;
constexpr int cardsAround = 4; // the visible ones, for the tabulator key
constexpr qsizetype mostBuilt = 200;
constexpr qint64 longestWork = 6; // milliseconds between two looks at the window's events

} // namespace

FileCardList::FileCardList(QWidget *parent)
    : QScrollArea(parent)
{
    setObjectName("fileCardList"_L1);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // it follows the focus of the cards
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setStyleSheet(u"QScrollArea { background: transparent; }"_s);
    viewport()->setAutoFillBackground(false);
    verticalScrollBar()->setSingleStep(rowHeight / 2);
    auto *container = new QWidget;
    container->setObjectName("fileCardContainer"_L1);
    container->setStyleSheet("#fileCardContainer { background: transparent; }"_L1
                             + theme::card(u"fileCard"_s, 1, true));
    setWidget(container);
    container->setAutoFillBackground(false);
    connect(&m_timer, &QTimer::timeout, this, &FileCardList::work);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &FileCardList::showNearest);
}

FileCardList::~FileCardList() = default;

void FileCardList::setFiles(const QList<LargeFileInfo> &files)
{
    for (FileCard *card : std::as_const(m_shown))
        card->hide();
    m_discarded += m_cards;
    m_cards.clear();
    m_shown.clear();
    m_built.clear();
    m_files = files;
    m_next = 0;
    verticalScrollBar()->setValue(0);
    while (isFilling() && m_next < cardsAtOnce)
        addCard();
    updateHeight();
    showNearest();
    if (isFilling() || !m_discarded.isEmpty())
        m_timer.start(0);
}

void FileCardList::addCard()
{
    auto *card = new FileCard(m_files.at(m_next++), widget());
    m_cards.append(card);
    Q_EMIT cardAdded(card);
}

void FileCardList::discard(FileCard *card)
{
    card->hide();
    m_cards.removeOne(card);
    m_shown.removeOne(card);
    m_built.removeOne(card);
    m_discarded.append(card);
    m_timer.start(0); // which also closes the gap, once for all that go now
}

// Of all files, whether they have a card already or not: the list does not grow under the mouse.
void FileCardList::updateHeight()
{
    const auto rows = static_cast<int>(m_cards.size() + m_files.size() - m_next);
    widget()->setMinimumHeight(rows * rowHeight);
}

void FileCardList::work()
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < longestWork) {
        if (isFilling()) {
            addCard();
        } else if (!m_discarded.isEmpty()) {
            delete m_discarded.takeFirst(); // the oldest is found first by its parent
        } else {
            m_timer.stop();
            break;
        }
    }
    if (!isFilling()) {
        m_files.clear();
        m_next = 0;
    }
    updateHeight();
    showNearest();
}

void FileCardList::showNearest()
{
    const int top = verticalScrollBar()->value() / rowHeight;
    const int count = viewport()->height() / rowHeight + 2;
    const qsizetype first = std::max(0, top - cardsAround);
    const qsizetype end = std::min<qsizetype>(m_cards.size(), qsizetype(top) + count + cardsAround);
    const QList<FileCard *> nearest =
        first < end ? m_cards.sliced(first, end - first) : QList<FileCard *>();
    for (FileCard *card : std::as_const(m_shown)) {
        if (!nearest.contains(card))
            card->hide();
    }
    m_shown = nearest;
    for (qsizetype i = 0; i < nearest.size(); ++i) {
        FileCard *card = nearest.at(i);
        m_built.removeOne(card);
        m_built.append(card);
        card->setBuilt(true);
        card->setGeometry(0, static_cast<int>(first + i) * rowHeight,
                          widget()->width() - roomForScrollBar, FileCard::cardHeight);
        card->show();
    }
    while (m_built.size() > mostBuilt)
        m_built.takeFirst()->setBuilt(false);
}

void FileCardList::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    showNearest();
}
