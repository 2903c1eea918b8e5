#include "itemdetaildialog.h"

#include "detailitemwidget.h"
#include "filelocation.h"
#include "parts.h"
#include "scanresult.h"
#include "svgicon.h"
#include "text.h"
#include "theme.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype batchSize = 50;
constexpr int columnMargin = 20; ///< pixels, of the rows and of the column header
constexpr int listBorder = 1;

} // namespace

ItemDetailDialog::ItemDetailDialog(const CleanCategory *category, QWidget *parent)
    : FramelessDialog(parent)
    , m_category(category)
{
    setObjectName("itemDetailDialog"_L1);
    setWindowTitle(singleLine(category->name));
    setStyleSheet(theme::detailDialog());
    resize(760, 540);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    m_titleBar = buildTitleBar();
    layout->addWidget(m_titleBar);
    QWidget *header = buildColumnHeader();
    layout->addWidget(header);

    m_scrollArea = new QScrollArea(this);
    m_scrollArea->setObjectName("detailScrollArea"_L1);
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    m_scrollArea->setStyleSheet(theme::detailScrollArea());
    m_scrollArea->setAccessibleName(windowTitle());
    m_scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *list = new QWidget(m_scrollArea);
    list->setObjectName("detailList"_L1);
    list->setStyleSheet(theme::detailRows());
    m_rows = new QVBoxLayout(list);
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setSpacing(0);
    m_rows->setAlignment(Qt::AlignTop);
    m_scrollArea->setWidget(list);
    layout->addWidget(m_scrollArea, 1);
    // The column titles align with the rows. A visible scroll bar makes the rows narrower.
    const QScrollBar *bar = m_scrollArea->verticalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, header, [bar, header](int, int maximum) {
        const int scrollBarWidth = maximum > 0 ? bar->sizeHint().width() : 0;
        header->layout()->setContentsMargins(columnMargin + listBorder, 0,
                                             columnMargin + listBorder + scrollBarWidth, 0);
    });
    m_scrollArea->setFocus();

    connect(m_scrollArea->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &ItemDetailDialog::onScrollChanged);
    loadMoreItems();
}

QWidget *ItemDetailDialog::buildTitleBar()
{
    auto *bar = new QWidget(this);
    bar->setObjectName("detailTitleBar"_L1);
    bar->setAttribute(Qt::WA_StyledBackground);
    bar->setStyleSheet(theme::detailTitleBar());
    bar->setFixedHeight(60);
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(12, 0, 20, 0);
    layout->setSpacing(12);

    QPushButton *back = parts::button(u"backBtn"_s, {}, theme::detailBackButton(), bar);
    back->setIcon(QIcon(svgPixmap(u":/icons/chevron-left.svg"_s, {24, 24}, devicePixelRatioF())));
    back->setIconSize({24, 24});
    back->setFixedSize(36, 36);
    back->setToolTip(tr("Back"));
    back->setAccessibleName(tr("Back"));
    back->setAutoDefault(false);
    connect(back, &QPushButton::clicked, this, &QDialog::reject);
    layout->addWidget(back);

    QLabel *name = parts::label(singleLine(m_category->name), theme::uncolouredLabel(16, 600), bar);
    name->setObjectName("detailTitle"_L1);
    layout->addWidget(name, 1);
    QLabel *summary = parts::label(hasFiles() ? tr("%1  |  %2 files")
                                                    .arg(formatSize(m_category->totalSize()),
                                                         QString::number(m_category->items.size()))
                                              : tr("%1 items").arg(m_category->items.size()),
                                   theme::uncolouredLabel(13), bar);
    summary->setObjectName("detailSummary"_L1);
    layout->addWidget(summary);
    return bar;
}

QWidget *ItemDetailDialog::buildColumnHeader()
{
    auto *header = new QWidget(this);
    header->setObjectName("detailHeader"_L1);
    header->setAttribute(Qt::WA_StyledBackground);
    header->setStyleSheet(theme::detailColumnHeader());
    header->setFixedHeight(38);
    auto *layout = new QHBoxLayout(header);
    layout->setContentsMargins(columnMargin + listBorder, 0, columnMargin + listBorder, 0);
    layout->setSpacing(12);
    const auto addColumn = [&](const QString &text, Qt::Alignment alignment, int width) {
        QLabel *label = parts::label(text, theme::label(theme::muted, 12, 600), header);
        label->setAlignment(alignment | Qt::AlignVCenter);
        if (width > 0)
            label->setFixedWidth(width);
        layout->addWidget(label, width > 0 ? 0 : 1);
    };
    addColumn(tr("Name"), Qt::AlignLeft, 0);
    if (hasFiles()) {
        addColumn(tr("Size"), Qt::AlignRight, 100);
        addColumn(tr("Action"), Qt::AlignHCenter, 190);
    } else {
        addColumn(tr("Details"), Qt::AlignLeft, 0);
    }
    return header;
}

// A registry entry has no size and no location in the file manager.
bool ItemDetailDialog::hasFiles() const
{
    return m_category->items.isEmpty() || m_category->items.constFirst().registryRoot.isEmpty();
}

void ItemDetailDialog::loadMoreItems()
{
    if (m_isLoading || m_loadedCount >= m_category->items.size())
        return;
    m_isLoading = true;
    const qsizetype end = qMin(m_loadedCount + batchSize, m_category->items.size());
    for (qsizetype index = m_loadedCount; index < end; ++index) {
        auto *row = new DetailItemWidget(m_category->items.at(index), index % 2 == 1, this);
        connect(row, &DetailItemWidget::openLocationRequested, this,
                &ItemDetailDialog::onOpenLocation);
        m_rows->addWidget(row);
    }
    m_loadedCount = end;
    m_isLoading = false;
    QTimer::singleShot(0, this, &ItemDetailDialog::fillViewport);
}

// Scrolling loads the next batch. A list that is shorter than the viewport cannot scroll, so it is
// filled here.
void ItemDetailDialog::fillViewport()
{
    const int listHeight = m_scrollArea->widget()->sizeHint().height();
    if (isVisible() && listHeight < m_scrollArea->viewport()->height() + 50)
        loadMoreItems();
}

void ItemDetailDialog::onScrollChanged(int value)
{
    if (m_scrollArea->verticalScrollBar()->maximum() - value < 100 && !m_isLoading)
        loadMoreItems();
}

void ItemDetailDialog::onOpenLocation(const QString &path)
{
    filelocation::show(this, path);
}

bool ItemDetailDialog::isDragArea(QPoint position) const
{
    return m_titleBar->geometry().contains(position);
}

void ItemDetailDialog::resizeEvent(QResizeEvent *event)
{
    FramelessDialog::resizeEvent(event);
    fillViewport();
}

void ItemDetailDialog::showEvent(QShowEvent *event)
{
    FramelessDialog::showEvent(event);
    QTimer::singleShot(0, this, &ItemDetailDialog::fillViewport);
}
