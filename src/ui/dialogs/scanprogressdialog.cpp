#include "scanprogressdialog.h"

#include "scanresult.h"
#include "text.h"
#include "theme.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QLabel *addLabel(QVBoxLayout *layout, const QString &text, const QString &style)
{
    auto *label = new QLabel(text, layout->parentWidget());
    label->setAlignment(Qt::AlignCenter);
    label->setTextFormat(Qt::PlainText);
    label->setStyleSheet(style);
    // A text of any length leaves the layout as it is.
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    layout->addWidget(label);
    return label;
}

} // namespace

ScanProgressDialog::ScanProgressDialog(QWidget *parent)
    : FramelessDialog(parent)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setFixedSize(420, 220);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 20);
    addLabel(layout, u"🔍"_s, u"font-size: 24px;"_s);
    QLabel *title =
        addLabel(layout, tr("Scanning for large files..."), theme::label(theme::text, 18, 600));
    setWindowTitle(title->text());

    auto *bar = new QProgressBar(this);
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    bar->setFixedHeight(6);
    bar->setStyleSheet(theme::thinProgressBar(theme::accent, 3));
    bar->setAccessibleName(title->text());
    layout->addWidget(bar);

    m_path = addLabel(layout, tr("Preparing..."), theme::label(theme::faint, 12));
    m_path->setObjectName("scanPath"_L1);
    m_count =
        addLabel(layout, tr("Found %1 large files (%2)").arg(QString::number(0), formatSize(0)),
                 theme::label(theme::accent, 15, 500));
    m_count->setObjectName("scanCount"_L1);

    auto *cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName("cancelBtn"_L1);
    cancel->setFixedSize(100, 36);
    cancel->setCursor(Qt::PointingHandCursor);
    cancel->setStyleSheet(
        theme::dangerButton({.radius = theme::controlRadius, .padding = u"0 6px"_s}));
    layout->addWidget(cancel, 0, Qt::AlignCenter);
    connect(cancel, &QPushButton::clicked, this, &ScanProgressDialog::cancelRequested);
}

void ScanProgressDialog::updateProgress(const QString &path, int foundCount, qint64 totalSize)
{
    m_path->setText(tr("Scanning: %1").arg(shortPath(singleLine(path), 25, 22)));
    const QString count =
        tr("Found %1 large files (%2)").arg(QString::number(foundCount), formatSize(totalSize));
    if (count != m_count->text())
        m_count->setText(count);
}

void ScanProgressDialog::reject()
{
    Q_EMIT cancelRequested();
}

void ScanProgressDialog::paintEvent(QPaintEvent *)
{
    paintGround(theme::windowRadius);
}
