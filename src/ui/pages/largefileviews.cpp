#include "largefileviews.h"

#include "filecardlist.h"
#include "parts.h"
#include "scanresult.h"
#include "theme.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 mebibyte = 1'048'576;
constexpr int drivesPerRow = 4;

} // namespace

LargeFileSelectionView::LargeFileSelectionView(const QList<DriveInfo> &drives, QWidget *parent)
    : QScrollArea(parent)
{
    // A computer may have many drives. The view scrolls, so that they do not make the window
    // larger.
    setObjectName("selectionView"_L1);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setStyleSheet(theme::transparentScrollArea());
    viewport()->setAutoFillBackground(false);
    setFocusPolicy(Qt::NoFocus);
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(20);

    auto *titles = new QVBoxLayout;
    titles->setSpacing(4);
    titles->addWidget(
        parts::label(tr("Find Large Files"), theme::label(theme::text, 24, 700), content));
    titles->addWidget(parts::label(tr("Scan and clean files that take up a lot of disk space"),
                                   theme::label(theme::muted, 14), content));
    layout->addLayout(titles);
    layout->addWidget(
        parts::label(tr("Select Scan Location"), theme::label(theme::text, 15, 600), content));
    layout->addLayout(buildDriveGrid(drives, content));
    layout->addLayout(buildSizeRow(content));

    m_startButton = parts::tabButton(u"startScanBtn"_s, tr("🔍 Start Scan"),
                                     theme::filledButton({.background = theme::accent,
                                                          .hovered = theme::accentHover,
                                                          .radius = 12,
                                                          .fontSize = 16,
                                                          .padding = u"0"_s,
                                                          .weight = 600}),
                                     content);
    m_startButton->setFixedSize(140, 48);
    layout->addWidget(m_startButton);
    layout->addStretch();
    setWidget(content);
    content->setAutoFillBackground(false);
}

QLayout *LargeFileSelectionView::buildDriveGrid(const QList<DriveInfo> &drives, QWidget *parent)
{
    auto *grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(12);
    grid->setColumnStretch(drivesPerRow, 1);
    int index = 0;
    for (const DriveInfo &drive : drives) {
        auto *card = new DriveCard(drive, parent);
        grid->addWidget(card, index / drivesPerRow, index % drivesPerRow);
        m_driveCards.append(card);
        m_driveBoxes.insert(drive.rootPath, card->checkBox());
        ++index;
    }
    return grid;
}

QLayout *LargeFileSelectionView::buildSizeRow(QWidget *parent)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    QLabel *caption =
        parts::label(tr("Minimum File Size:"), theme::label(theme::muted, 14), parent);
    row->addWidget(caption);
    m_sizeCombo = new QComboBox(parent);
    m_sizeCombo->setObjectName("sizeCombo"_L1);
    m_sizeCombo->setFixedSize(140, 36);
    m_sizeCombo->setStyleSheet(theme::comboBox());
    m_sizeCombo->setAccessibleName(caption->text());
    m_sizeCombo->view()->setAccessibleName(caption->text());
    caption->setBuddy(m_sizeCombo);
    m_sizeCombo->addItem(tr("50 MB"), 50 * mebibyte);
    m_sizeCombo->addItem(tr("100 MB"), 100 * mebibyte);
    m_sizeCombo->addItem(tr("200 MB"), 200 * mebibyte);
    m_sizeCombo->addItem(tr("500 MB"), 500 * mebibyte);
    m_sizeCombo->addItem(tr("1 GB"), 1024 * mebibyte);
    m_sizeCombo->addItem(tr("Custom..."), customItem);
    m_sizeCombo->setCurrentIndex(defaultSizeIndex);
    row->addWidget(m_sizeCombo);
    row->addStretch();
    return row;
}

LargeFileResultsView::LargeFileResultsView(LargeFileModel *model, QWidget *parent)
    : QWidget(parent)
    , m_summary(parts::label({}, theme::label(theme::muted, 14), this))
    , m_selected(parts::label({}, theme::label(theme::muted, 14), this))
    , m_backButton(parts::tabButton(
          u"backBtn"_s, tr("← Back"),
          theme::quietButton({.radius = theme::buttonRadius, .fontSize = 14}), this))
    , m_deleteButton(parts::tabButton(
          u"deleteBtn"_s, tr("🗑️ Delete Selected"),
          theme::dangerButton({.radius = theme::buttonRadius, .padding = u"0 16px"_s}), this))
    , m_list(new FileCardList(model, this))
{
    setObjectName("resultsView"_L1);
    m_summary->setObjectName("summaryLabel"_L1);
    m_selected->setObjectName("selectedLabel"_L1);
    m_backButton->setFixedSize(80, 40);
    m_deleteButton->setMinimumHeight(40);
    setSummary(0, 0);
    setSelected(0, 0);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    auto *header = new QHBoxLayout;
    header->setSpacing(16);
    header->addWidget(parts::label(tr("Scan Results"), theme::label(theme::text, 24, 700), this));
    header->addWidget(m_summary, 1);
    header->addWidget(m_backButton);
    layout->addLayout(header);
    auto *bar = new QHBoxLayout;
    bar->addWidget(m_selected, 1);
    bar->addWidget(m_deleteButton);
    layout->addLayout(bar);
    m_list->setAccessibleName(tr("Scan Results"));
    layout->addWidget(m_list, 1);
}

void LargeFileResultsView::setSummary(qsizetype count, qint64 size)
{
    m_summary->setText(
        tr("Found %1 large files, total %2").arg(QString::number(count), formatSize(size)));
}

void LargeFileResultsView::setSelected(int count, qint64 size)
{
    m_selected->setText(
        tr("Selected: %1 files (%2)").arg(QString::number(count), formatSize(size)));
    m_deleteButton->setEnabled(count > 0);
}
