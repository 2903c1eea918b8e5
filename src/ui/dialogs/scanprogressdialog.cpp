#include "scanprogressdialog.h"

#include "parts.h"
#include "scanresult.h"
#include "text.h"
#include "theme.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ScanProgressDialog::ScanProgressDialog(QWidget *parent)
    : FramelessDialog(parent)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setFixedSize(420, 220);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 20);
    QLabel *symbol = parts::centredLabel(u"🔍"_s, theme::uncolouredLabel(24), this);
    QLabel *title = parts::centredLabel(tr("Scanning for large files..."),
                                        theme::label(theme::text, 18, 600), this);
    setWindowTitle(title->text());

    auto *bar = new QProgressBar(this);
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    bar->setFixedHeight(6);
    bar->setStyleSheet(theme::thinProgressBar(theme::accent, 3));
    bar->setAccessibleName(title->text());

    m_path = parts::centredLabel(tr("Preparing..."), theme::label(theme::faint, 12), this);
    m_path->setObjectName("scanPath"_L1);
    m_count =
        parts::centredLabel(tr("Found %1 large files (%2)").arg(QString::number(0), formatSize(0)),
                            theme::label(theme::accent, 15, 500), this);
    m_count->setObjectName("scanCount"_L1);

    QPushButton *cancel = parts::button(
        u"cancelBtn"_s, tr("Cancel"),
        theme::dangerButton({.radius = theme::controlRadius, .padding = u"0 6px"_s}), this);
    cancel->setFixedSize(100, 36);
    connect(cancel, &QPushButton::clicked, this, &ScanProgressDialog::cancelRequested);

    for (QLabel *label : {symbol, title, m_path, m_count})
        parts::ignoreTextWidth(label);
    for (QWidget *row : std::initializer_list<QWidget *>{symbol, title, bar, m_path, m_count})
        layout->addWidget(row);
    layout->addWidget(cancel, 0, Qt::AlignCenter);
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
    paintBackground(theme::windowRadius);
}
