#include "aboutdialog.h"

#include "appinfo.h"
#include "parts.h"
#include "theme.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int shadow = 8; ///< height in pixels, below the background

// The height of the texts depends on font and language. Spacing and margins shrink before a line is
// cut off.
void fitHeight(QVBoxLayout *layout, int height)
{
    const QMargins margins = layout->contentsMargins();
    const int width = layout->parentWidget()->width();
    const auto isTooHigh = [=] { return layout->totalHeightForWidth(width) > height; };
    while (isTooHigh() && layout->spacing() > 6)
        layout->setSpacing(layout->spacing() - 1);
    for (int edge = margins.top(); isTooHigh() && edge > 16; --edge)
        layout->setContentsMargins(margins.left(), edge, margins.right(), edge);
}

} // namespace

AboutDialog::AboutDialog(QWidget *parent)
    : FramelessDialog(parent)
{
    setObjectName("aboutDialog"_L1);
    setAttribute(Qt::WA_TranslucentBackground);
    setFixedSize(400, 380);
    setModal(true);
    setWindowTitle(tr("About"));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 32, 32, 32);
    layout->setSpacing(16);
    QLabel *icon = parts::centredLabel(u"🧹"_s, theme::aboutIcon(), this);
    icon->setFixedSize(72, 72);
    layout->addWidget(icon, 0, Qt::AlignHCenter);
    layout->addWidget(
        parts::centredLabel(u"Sweepwise"_s, theme::label(theme::text, 24, 700), this));
    layout->addWidget(parts::centredLabel(tr("Version %1").arg(appinfo::version),
                                          theme::label(theme::muted, 13), this));
    QLabel *features = parts::label(tr("Your Personal System Butler\n\n"
                                       "🧹 Junk Cleaner - Free up valuable disk space\n"
                                       "🌐 Browser Cleaner - Protect your privacy\n"
                                       "🔧 Registry Cleaner - Boost system performance\n"
                                       "⚡ Startup Manager - Speed up boot time"),
                                    theme::aboutFeatures(), this);
    features->setAlignment(Qt::AlignLeft);
    features->setWordWrap(true);
    layout->addWidget(features);
    layout->addSpacing(12);
    layout->addWidget(parts::centredLabel(tr("© 2026 Norvak. All rights reserved."),
                                          theme::label(theme::faint, 11), this));
    layout->addStretch();
    QPushButton *ok = parts::button(u"okBtn"_s, tr("OK"),
                                    theme::dialogButton({.background = theme::accent,
                                                         .colour = theme::onColour,
                                                         .hovered = theme::accentHover,
                                                         .fontSize = 14}),
                                    this);
    ok->setFixedSize(100, 36);
    ok->setDefault(true);
    layout->addWidget(ok, 0, Qt::AlignCenter);
    connect(ok, &QPushButton::clicked, this, &AboutDialog::accept);
    for (const QLabel *label : findChildren<QLabel *>())
        label->ensurePolished(); // so that its own font is measured
    fitHeight(layout, height() - shadow);
}

void AboutDialog::paintEvent(QPaintEvent *)
{
    paintBackgroundWithShadow(20);
}
