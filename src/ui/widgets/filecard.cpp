#include "filecard.h"

#include "elidedlabel.h"
#include "parts.h"
#include "scanresult.h"
#include "text.h"
#include "theme.h"
#include "tooltip.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 gibibyte = 1'073'741'824;
constexpr int margin = 16;
constexpr int spacing = 12;
constexpr int iconSize = 36;

QString iconOf(const QString &type)
{
    if (type == "video"_L1)
        return u"🎬"_s;
    if (type == "audio"_L1)
        return u"🎵"_s;
    if (type == "archive"_L1)
        return u"📦"_s;
    if (type == "image"_L1)
        return u"🖼️"_s;
    if (type == "document"_L1)
        return u"📄"_s;
    return u"📁"_s;
}

QString badgeStyle(bool isHuge)
{
    return isHuge ? theme::pill({.colour = theme::dangerHover, .background = theme::dangerTint})
                  : theme::pill({.colour = theme::text, .background = theme::buttonBackground});
}

} // namespace

FileCard::FileCard(QWidget *parent)
    : QFrame(parent)
    , m_checkBox(new QCheckBox(this))
    , m_icon(parts::centredLabel({}, theme::emojiBox(theme::buttonBackground), this))
    , m_name(new ElidedLabel({}, this))
    , m_folder(parts::label({}, theme::label(theme::faint, 11), this))
    , m_badge(parts::label({}, badgeStyle(false), this))
{
    setObjectName("fileCard"_L1);
    m_icon->setObjectName("fileIcon"_L1);
    m_name->setObjectName("fileName"_L1);
    m_folder->setObjectName("fileFolder"_L1);
    m_badge->setObjectName("sizeBadge"_L1);
    setFixedHeight(cardHeight);
    setContextMenuPolicy(Qt::CustomContextMenu);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(margin, 10, margin, 10);
    layout->setSpacing(spacing);
    layout->addWidget(m_checkBox);
    m_icon->setFixedSize(iconSize, iconSize);
    layout->addWidget(m_icon);
    auto *names = new QVBoxLayout;
    names->setSpacing(2);
    m_name->setStyleSheet(theme::label(theme::text, 14, 600));
    parts::ignoreTextWidth(m_folder);
    names->addWidget(m_name);
    names->addWidget(m_folder);
    layout->addLayout(names, 1);
    layout->addWidget(m_badge, 0, Qt::AlignVCenter);
}

void FileCard::bind(const LargeFileInfo &info, bool ticked)
{
    m_info = info;
    for (QWidget *widget : {static_cast<QWidget *>(this), static_cast<QWidget *>(m_checkBox)}) {
        widget->setProperty("filePath", info.path);
        widget->setProperty("fileSize", info.size);
    }
    const QSignalBlocker blocker(m_checkBox);
    m_checkBox->setChecked(ticked);
    m_checkBox->setAccessibleName(
        tr("%1, %2").arg(singleLine(info.name).left(256), formatSize(info.size)));
    m_checkBox->setAccessibleDescription(singleLine(info.directory));

    m_icon->setText(iconOf(info.type));
    m_name->setFullText(info.name);
    m_folder->setText(shortPath(singleLine(info.directory), 25, 22));
    m_folder->setToolTip(plainToolTip(info.directory));
    m_badge->setText(formatSize(info.size));
    const bool isHuge = info.size > gibibyte;
    if (std::exchange(m_isHuge, isHuge) != isHuge)
        m_badge->setStyleSheet(badgeStyle(isHuge));
    elideName();
}

void FileCard::elideName()
{
    m_badge->ensurePolished();
    const int others = m_checkBox->sizeHint().width() + iconSize + m_badge->sizeHint().width();
    m_name->elideTo(width() - 2 * margin - 3 * spacing - others);
}

void FileCard::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    elideName();
}
