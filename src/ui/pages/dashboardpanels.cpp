#include "dashboardpanels.h"

#include "circleprogresswidget.h"
#include "parts.h"
#include "statcard.h"
#include "theme.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int pixelsPerPercent = 4;
constexpr int trackHeight = 8;
constexpr int fixedArc = 75; ///< percent of the circle, the same for all results
constexpr int fixedRegistryBar = 60; ///< pixels, the same for all results
constexpr qint64 shortestBar = 20; ///< pixels

// One decimal from KB on. formatSize() shows two decimals for GB.
QString sizeText(qint64 bytes)
{
    const auto rounded = [bytes](qint64 unit) {
        return QString::number(static_cast<double>(bytes) / static_cast<double>(unit), 'f', 1);
    };
    if (bytes < 1LL << 10)
        return QCoreApplication::translate("formatSize", "%1 B").arg(bytes);
    if (bytes < 1LL << 20)
        return QCoreApplication::translate("formatSize", "%1 KB").arg(rounded(1LL << 10));
    if (bytes < 1LL << 30)
        return QCoreApplication::translate("formatSize", "%1 MB").arg(rounded(1LL << 20));
    return QCoreApplication::translate("formatSize", "%1 GB").arg(rounded(1LL << 30));
}

} // namespace

DashboardStartPanel::DashboardStartPanel(QWidget *parent)
    : QWidget(parent)
    , m_emblem(parts::centredLabel(u"🧹"_s, theme::emblem(), this))
    , m_startButton(parts::tabButton(u"startFullScanBtn"_s, tr("🔍  Start Full Scan"),
                                     theme::gradientButton({.radius = 12, .fontSize = 16}), this))
{
    m_startButton->setFixedSize(200, 50);
    m_emblem->setFixedSize(120, 120);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 8, 28, 20);
    layout->setSpacing(0);
    layout->addStretch(3);
    layout->addWidget(m_emblem, 0, Qt::AlignHCenter);
    layout->addSpacing(24);
    layout->addWidget(parts::centredLabel(tr("Ready to Clean Your PC"),
                                          theme::label(theme::text, 20, 600), this));
    layout->addSpacing(8);
    QLabel *hint =
        parts::centredLabel(tr("Click the button below to scan for junk files and free up space"),
                            theme::label(theme::muted, 14), this);
    hint->setWordWrap(true);
    layout->addWidget(hint);
    layout->addSpacing(28);
    layout->addWidget(m_startButton, 0, Qt::AlignHCenter);
    layout->addSpacing(24);
    m_progressArea = buildProgressArea();
    layout->addWidget(m_progressArea);
    layout->addStretch(4);
}

QWidget *DashboardStartPanel::buildProgressArea()
{
    auto *area = new QWidget(this);
    area->setObjectName("progressArea"_L1);
    m_percent = parts::centredLabel(tr("%1%").arg(0), theme::label(theme::accent, 24, 700), area);
    m_percent->setObjectName("percentLabel"_L1);
    auto *track = new QWidget(area);
    track->setAttribute(Qt::WA_StyledBackground);
    track->setFixedSize(100 * pixelsPerPercent, trackHeight);
    track->setStyleSheet(theme::bar(theme::border, trackHeight / 2));
    m_fill = new QWidget(track);
    m_fill->setObjectName("progressFill"_L1);
    m_fill->setAttribute(Qt::WA_StyledBackground);
    m_fill->setFixedSize(0, trackHeight);
    m_fill->setStyleSheet(theme::gradientBar());
    m_path = parts::centredLabel(tr("Preparing..."), theme::label(theme::faint, 12), area);
    m_path->setObjectName("pathLabel"_L1);
    parts::ignoreTextWidth(m_path);

    auto *layout = new QVBoxLayout(area);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(m_percent);
    layout->addWidget(track, 0, Qt::AlignHCenter);
    layout->addWidget(m_path);
    // The hidden area keeps its room, so that the panel does not move when the area appears.
    QSizePolicy policy = area->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    area->setSizePolicy(policy);
    area->hide();
    return area;
}

void DashboardStartPanel::setScanning(bool scanning)
{
    m_startButton->setEnabled(!scanning);
    m_startButton->setText(scanning ? tr("Scanning...") : tr("🔍  Start Full Scan"));
    m_progressArea->setVisible(scanning);
    m_activity.hide();
    update(activityRect());
    if (scanning)
        setProgress(0, tr("Preparing..."));
}

void DashboardStartPanel::showActivity()
{
    m_activity.step();
    update(activityRect());
}

QRect DashboardStartPanel::activityRect() const
{
    return m_emblem->geometry().adjusted(-7, -7, 7, 7);
}

void DashboardStartPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_activity.paint(painter, activityRect().adjusted(2, 2, -2, -2));
}

void DashboardStartPanel::setProgress(int percent, const QString &path)
{
    m_percent->setText(tr("%1%").arg(percent));
    m_fill->setFixedWidth(qMax(0, percent) * pixelsPerPercent);
    m_path->setText(path);
}

DashboardResultsPanel::DashboardResultsPanel(QWidget *parent)
    : QWidget(parent)
    , m_circle(new CircleProgressWidget(this))
{
    m_circle->setUnit(tr("GB"));
    m_circle->setCaption(tr("Can be cleaned"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 8, 28, 20);
    layout->setSpacing(14);
    auto *titles = new QVBoxLayout;
    titles->setSpacing(2);
    QLabel *title = parts::label(u"Sweepwise 5.0"_s, theme::label(theme::text, 24, 600), this);
    QLabel *header = parts::label(tr("Keep Your PC Running at Peak Performance"),
                                  theme::dashboardSubtitle(), this);
    for (QLabel *label : {title, header}) {
        label->setAlignment(Qt::AlignLeft);
        titles->addWidget(label);
    }
    layout->addLayout(titles);
    layout->addWidget(buildMainCard(), 1);
    layout->addLayout(buildCards());
    layout->addWidget(buildTip());
}

QWidget *DashboardResultsPanel::buildMainCard()
{
    auto *card = new QFrame(this);
    card->setObjectName("circleCard"_L1);
    card->setStyleSheet(theme::circleCard(card->objectName()));
    auto *layout = new QVBoxLayout(card);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(14);
    layout->addStretch();
    layout->addWidget(m_circle, 0, Qt::AlignHCenter);
    layout->addLayout(buildStatusRow());
    layout->addLayout(buildButtonRow());
    layout->addStretch();
    return card;
}

QLayout *DashboardResultsPanel::buildStatusRow()
{
    m_dot = new QLabel(this);
    m_dot->setObjectName("statusDot"_L1);
    m_dot->setFixedSize(10, 10);
    m_status = parts::centredLabel({}, theme::transparentLabel(theme::muted, 13), this);
    m_status->setObjectName("statusLabel"_L1);
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    row->addStretch();
    row->addWidget(m_dot);
    row->addWidget(m_status);
    row->addStretch();
    return row;
}

QLayout *DashboardResultsPanel::buildButtonRow()
{
    m_scanButton = parts::tabButton(
        u"dashboardScanBtn"_s, tr("🔍 Start Scan"),
        theme::gradientButton({.radius = theme::buttonRadius, .fontSize = 14}), this);
    m_cleanButton = parts::tabButton(
        u"dashboardCleanBtn"_s, tr("🗑️ Clean All"),
        theme::dangerOutlineButton({.radius = theme::buttonRadius, .fontSize = 14}), this);
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    row->addStretch();
    for (QPushButton *button : {m_scanButton, m_cleanButton}) {
        button->setFixedSize(145, 44);
        row->addWidget(button);
    }
    row->addStretch();
    setScanning(false);
    return row;
}

QLayout *DashboardResultsPanel::buildCards()
{
    m_junkCard = new StatCard(tr("Junk Files"),
                              {u":/icons/trash.svg"_s, theme::junk, theme::goodTint}, this);
    m_browserCard = new StatCard(
        tr("Browser Data"), {u":/icons/browser.svg"_s, theme::browser, theme::browserTint}, this);
    m_registryCard =
        new StatCard(tr("Registry Issues"),
                     {u":/icons/registry.svg"_s, theme::warning, theme::warningTint}, this);
    m_registryCard->setBarWidth(fixedRegistryBar);
    auto *row = new QHBoxLayout;
    row->setSpacing(14);
    for (StatCard *card : {m_junkCard, m_browserCard, m_registryCard})
        row->addWidget(card, 1);
    return row;
}

QWidget *DashboardResultsPanel::buildTip()
{
    auto *tip = new QFrame(this);
    tip->setObjectName("tipBox"_L1);
    tip->setFixedHeight(50);
    tip->setStyleSheet(theme::tipBox(tip->objectName()));
    QLabel *text =
        parts::label(tr("<span style='font-weight:600;'>Tip:</span> Regular cleaning can "
                        "improve your PC performance by up to 30%"),
                     theme::transparentLabel(theme::goodText, 13), tip);
    text->setTextFormat(Qt::RichText);
    text->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    text->setWordWrap(true);
    auto *layout = new QHBoxLayout(tip);
    layout->setContentsMargins(16, 4, 16, 4);
    layout->addWidget(text);
    return tip;
}

void DashboardResultsPanel::setScanning(bool scanning)
{
    m_scanButton->setEnabled(!scanning);
    m_cleanButton->setEnabled(!scanning);
    m_status->setText(scanning ? tr("Scanning...") : tr("Ready to scan"));
    m_dot->setStyleSheet(theme::statusDot(scanning ? theme::warning : theme::accent));
    m_circle->hideActivity();
    if (scanning)
        setProgress(0);
}

void DashboardResultsPanel::showActivity()
{
    m_circle->showActivity();
}

void DashboardResultsPanel::setProgress(int percent)
{
    m_circle->setProgress(percent);
    m_circle->setValue(percent);
    m_circle->setUnit(u"%"_s);
    m_circle->setCaption(tr("Scanning..."));
}

void DashboardResultsPanel::setResults(qint64 junkSize, qint64 browserSize, int registryCount)
{
    m_circle->setValue(static_cast<double>(junkSize + browserSize)
                       / static_cast<double>(1LL << 30));
    m_circle->setUnit(tr("GB"));
    m_circle->setCaption(tr("Can be cleaned"));
    m_circle->setProgress(fixedArc);

    m_junkCard->setValue(sizeText(junkSize));
    m_browserCard->setValue(sizeText(browserSize));
    m_registryCard->setValue(tr("%1 items").arg(registryCount));
    const qint64 larger = qMax(junkSize, browserSize);
    if (larger > 0) {
        const auto width = [larger](qint64 size) {
            return static_cast<int>(qMax(size * 100 / larger, shortestBar));
        };
        m_junkCard->setBarWidth(width(junkSize));
        m_browserCard->setBarWidth(width(browserSize));
    }
    m_registryCard->setBarWidth(fixedRegistryBar);
    m_status->setText(tr("Ready to scan"));
    m_dot->setStyleSheet(theme::statusDot(theme::accent));
}
