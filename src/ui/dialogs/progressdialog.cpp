#include "progressdialog.h"

#include "scanresult.h"
#include "text.h"
#include "theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QLabel *addCentredLabel(QVBoxLayout *layout, const QString &style)
{
    auto *label = new QLabel(layout->parentWidget());
    label->setAlignment(Qt::AlignCenter);
    label->setTextFormat(Qt::PlainText);
    label->setStyleSheet(style);
    layout->addWidget(label);
    return label;
}

QPushButton *addButton(QVBoxLayout *layout, const QString &name, const QString &text,
                       const QString &style)
{
    auto *button = new QPushButton(text, layout->parentWidget());
    button->setObjectName(name);
    button->setStyleSheet(style);
    button->setCursor(Qt::PointingHandCursor);
    button->setMinimumSize(120, 38);
    layout->addWidget(button, 0, Qt::AlignCenter);
    return button;
}

} // namespace

ProgressDialog::ProgressDialog(Mode mode, QWidget *parent)
    : FramelessDialog(parent)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setFixedSize(420, 330);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 28, 32, 24);
    layout->setSpacing(8);

    m_icon = new QLabel(mode == Scanning ? u"🔍"_s : u"🧹"_s, this);
    m_icon->setFixedSize(64, 64);
    m_icon->setAlignment(Qt::AlignCenter);
    layout->addWidget(m_icon, 0, Qt::AlignCenter);
    setIconColour(theme::accent);

    m_title = addCentredLabel(layout, theme::label(theme::text, 18, 600));
    m_subtitle = addCentredLabel(layout, theme::label(theme::muted, 13));
    m_detail = addCentredLabel(layout, theme::label(theme::muted, 12));
    m_detail->setMinimumHeight(20);
    m_title->setText(mode == Scanning ? tr("Scanning...") : tr("Cleaning..."));
    m_subtitle->setText(mode == Scanning ? tr("正在分析系统...") : tr("正在删除文件..."));
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
    m_percentage = addCentredLabel(layout, theme::label(theme::accentText, 14, 600));
    m_percentage->setText(tr("%1%").arg(0));
    layout->addStretch();

    m_cancelButton = addButton(layout, u"cancelBtn"_s, tr("Cancel"),
                               theme::quietButton({.radius = theme::buttonRadius, .fontSize = 14}));
    m_closeButton = addButton(layout, u"closeBtn"_s, tr("Close"),
                              theme::filledButton({.background = theme::accent,
                                                   .hovered = theme::accentHover,
                                                   .radius = theme::buttonRadius,
                                                   .fontSize = 14,
                                                   .padding = u"0 16px"_s}));
    m_closeButton->hide();
    connect(m_cancelButton, &QPushButton::clicked, this, &ProgressDialog::cancelRequested);
    connect(m_closeButton, &QPushButton::clicked, this, &ProgressDialog::accept);
}

void ProgressDialog::setProgress(int current, int total)
{
    if (total < 1 || m_finished)
        return;
    const int percent = static_cast<int>(static_cast<qint64>(current) * 100 / total);
    if (percent == m_bar->value())
        return;
    m_bar->setValue(percent);
    m_percentage->setText(tr("%1%").arg(percent));
}

void ProgressDialog::setDetail(const QString &text)
{
    if (m_finished)
        return;
    m_detail->setText(
        m_detail->fontMetrics().elidedText(singleLine(text), Qt::ElideMiddle, width() - 64));
}

void ProgressDialog::setCleanedSize(qint64 bytes)
{
    // One call an item: most of them change nothing that can be seen.
    const QString size = formatSize(bytes);
    if (size == m_cleanedSize)
        return;
    m_cleanedSize = size;
    setDetail(tr("已清理: %1").arg(size));
}

void ProgressDialog::showResult(bool success, const QString &message)
{
    m_finished = true;
    m_title->setText(success ? tr("完成!") : tr("操作失败"));
    setWindowTitle(m_title->text());
    m_icon->setText(success ? u"✓"_s : u"✕"_s);
    setIconColour(success ? theme::accent : theme::danger);
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
    if (m_finished)
        QDialog::reject();
    else
        Q_EMIT cancelRequested();
}

void ProgressDialog::setIconColour(theme::Colour colour)
{
    m_icon->setStyleSheet(theme::resultIcon(colour));
}

void ProgressDialog::paintEvent(QPaintEvent *)
{
    paintGround(theme::windowRadius);
}
