#include "progressdialog.h"

#include "parts.h"
#include "scanresult.h"
#include "text.h"
#include "theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ProgressDialog::ProgressDialog(Mode mode, QWidget *parent)
    : FramelessDialog(parent)
    , m_mode(mode)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setFixedSize(420, 330);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 28, 32, 24);
    layout->setSpacing(8);

    m_icon = parts::centredLabel(mode == Scanning ? u"🔍"_s : u"🧹"_s,
                                 theme::resultIcon(theme::accent), this);
    m_icon->setFixedSize(64, 64);
    layout->addWidget(m_icon, 0, Qt::AlignCenter);

    m_title = parts::centredLabel(mode == Scanning ? tr("Scanning...") : tr("Cleaning..."),
                                  theme::label(theme::text, 18, 600), this);
    m_subtitle =
        parts::centredLabel(mode == Scanning ? tr("正在分析系统...") : tr("正在删除文件..."),
                            theme::label(theme::muted, 13), this);
    m_detail = parts::centredLabel({}, theme::label(theme::muted, 12), this);
    m_detail->setMinimumHeight(20);
    for (QLabel *label : {m_title, m_subtitle, m_detail})
        layout->addWidget(label);
    setWindowTitle(m_title->text());

    m_bar = new QProgressBar(this);
    m_bar->setObjectName("progressBar"_L1);
    m_bar->setRange(0, 100);
    m_bar->setValue(0);
    m_bar->setTextVisible(false);
    m_bar->setFixedHeight(8);
    m_bar->setStyleSheet(theme::progressBar());
    m_bar->setAccessibleName(m_title->text());
    layout->addWidget(m_bar);
    m_percentage =
        parts::centredLabel(tr("%1%").arg(0), theme::label(theme::accentText, 14, 600), this);
    layout->addWidget(m_percentage);
    layout->addStretch();

    m_cancelButton =
        parts::button(u"cancelBtn"_s, tr("Cancel"),
                      theme::quietButton({.radius = theme::buttonRadius, .fontSize = 14}), this);
    m_closeButton = parts::button(u"closeBtn"_s, tr("Close"),
                                  theme::filledButton({.background = theme::accent,
                                                       .hovered = theme::accentHover,
                                                       .radius = theme::buttonRadius,
                                                       .fontSize = 14,
                                                       .padding = u"0 16px"_s}),
                                  this);
    for (QPushButton *button : {m_cancelButton, m_closeButton}) {
        button->setMinimumSize(120, 38);
        layout->addWidget(button, 0, Qt::AlignCenter);
    }
    m_closeButton->hide();
    connect(m_cancelButton, &QPushButton::clicked, this, &ProgressDialog::cancelRequested);
    connect(m_closeButton, &QPushButton::clicked, this, &ProgressDialog::accept);
}

void ProgressDialog::setProgress(int current, int total)
{
    if (total < 1 || m_isFinished)
        return;
    const int percent = static_cast<int>(static_cast<qint64>(current) * 100 / total);
    if (percent == m_bar->value())
        return;
    m_bar->setValue(percent);
    m_percentage->setText(tr("%1%").arg(percent));
}

void ProgressDialog::setDetail(const QString &text)
{
    if (m_isFinished)
        return;
    m_detail->setText(
        m_detail->fontMetrics().elidedText(singleLine(text), Qt::ElideMiddle, width() - 64));
}

void ProgressDialog::showActivity()
{
    if (m_isFinished)
        return;
    m_activity.step();
    update(activityRect());
}

QRect ProgressDialog::activityRect() const
{
    return m_icon->geometry().adjusted(-7, -7, 7, 7);
}

void ProgressDialog::setCleanedSize(qint64 bytes)
{
    // Each cleaned item causes a call, and most calls do not change the visible text.
    const QString size = formatSize(bytes);
    if (size == m_cleanedSize)
        return;
    m_cleanedSize = size;
    setDetail(tr("已清理: %1").arg(size));
}

void ProgressDialog::showResult(bool success, const QString &message)
{
    m_isFinished = true;
    m_activity.hide();
    m_title->setText(success ? tr("完成!") : tr("操作失败"));
    setWindowTitle(m_title->text());
    m_icon->setText(success ? u"✓"_s : u"✕"_s);
    m_icon->setStyleSheet(theme::resultIcon(success ? theme::accent : theme::danger));
    m_subtitle->setText(message);
    m_subtitle->setWordWrap(true);
    m_detail->clear();
    m_bar->setValue(100);
    m_percentage->setText(tr("%1%").arg(100));
    m_cancelButton->hide();
    m_closeButton->show();
    m_closeButton->setDefault(true);
    m_closeButton->setFocus();
}

void ProgressDialog::reject()
{
    if (m_isFinished)
        QDialog::reject();
    else
        Q_EMIT cancelRequested();
}

void ProgressDialog::paintEvent(QPaintEvent *)
{
    paintBackground(theme::windowRadius);
    QPainter painter(this);
    m_activity.paint(painter, activityRect().adjusted(2, 2, -2, -2));
}
