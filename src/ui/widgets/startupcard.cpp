#include "startupcard.h"

#include "elidedlabel.h"
#include "parts.h"
#include "startupmanager.h"
#include "text.h"
#include "theme.h"
#include "tooltip.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int reservedWidth = 240; ///< pixels, for check box, icon, status and spacing

} // namespace

StartupCard::StartupCard(const StartupApp &app, const QIcon &icon, QWidget *parent)
    : QFrame(parent)
    , m_checkBox(new QCheckBox(this))
{
    setObjectName("startupCard"_L1);
    setProperty("appName", app.name);
    setProperty("appExePath", app.exePath);
    setFixedHeight(70);
    setStyleSheet(theme::card({.objectName = u"startupCard"_s}));

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 10, 16, 10);
    layout->setSpacing(12);
    m_checkBox->setProperty("displayName", app.name);
    m_checkBox->setProperty("exePath", app.exePath);
    m_checkBox->setChecked(app.isStartup);
    m_checkBox->setCursor(Qt::PointingHandCursor);
    m_checkBox->setAccessibleName(tr("Start %1 automatically").arg(singleLine(app.name)));
    m_checkBox->setAccessibleDescription(singleLine(app.exePath));
    layout->addWidget(m_checkBox);
    layout->addWidget(buildIcon(icon));
    layout->addLayout(buildTexts(app), 1);

    m_status = parts::label(
        tr("Enabled"),
        theme::pill({.colour = theme::goodText, .background = theme::goodTint, .weight = 500}),
        this);
    m_status->setObjectName("statusLabel"_L1);
    layout->addWidget(m_status, 0, Qt::AlignVCenter);
    showState(app.isStartup);
}

QWidget *StartupCard::buildIcon(const QIcon &icon)
{
    m_icon = new QLabel(this);
    m_icon->setObjectName("iconLabel"_L1);
    m_icon->setFixedSize(36, 36);
    m_icon->setAlignment(Qt::AlignCenter);
    const QPixmap picture = icon.pixmap({32, 32}, devicePixelRatioF());
    m_icon->setProperty("hasRealIcon", !picture.isNull());
    if (picture.isNull())
        m_icon->setText(u"📦"_s);
    else
        m_icon->setPixmap(picture);
    return m_icon;
}

QLayout *StartupCard::buildTexts(const StartupApp &app)
{
    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    m_name = new ElidedLabel(app.name, this);
    m_name->setObjectName("appName"_L1);
    m_name->setStyleSheet(theme::label(theme::text, 14, 600));
    QLabel *path = parts::label(shortPath(singleLine(app.exePath), 30, 27),
                                theme::label(theme::faint, 11), this);
    parts::ignoreTextWidth(path);
    path->setToolTip(plainToolTip(app.exePath));
    texts->addWidget(m_name);
    texts->addWidget(path);
    return texts;
}

void StartupCard::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    m_name->elideTo(width() - reservedWidth);
}

void StartupCard::showState(bool isStartup)
{
    if (m_shownState == isStartup)
        return;
    m_shownState = isStartup;
    const theme::Colour background = isStartup ? theme::goodTint : theme::buttonBackground;
    m_icon->setStyleSheet(m_icon->property("hasRealIcon").toBool() ? theme::pictureBox(background)
                                                                   : theme::emojiBox(background));
    m_status->setVisible(isStartup);
}
