#include "filecard.h"

#include "elidedlabel.h"
#include "scanresult.h"
#include "text.h"
#include "theme.h"
#include "tooltip.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

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

QLabel *makeLabel(const QString &name, const QString &text, const QString &style, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setStyleSheet(style);
    return label;
}

} // namespace

FileCard::FileCard(const LargeFileInfo &info, QWidget *parent)
    : QFrame(parent)
    , m_info(info)
    , m_layout(new QHBoxLayout(this))
    , m_checkBox(new QCheckBox(this))
{
    setObjectName("fileCard"_L1);
    setFixedHeight(cardHeight);
    setContextMenuPolicy(Qt::CustomContextMenu);
    for (QWidget *widget : {static_cast<QWidget *>(this), static_cast<QWidget *>(m_checkBox)}) {
        widget->setProperty("filePath", info.path);
        widget->setProperty("fileSize", info.size);
    }
    m_checkBox->setAccessibleName(
        tr("%1, %2").arg(singleLine(info.name).left(256), formatSize(info.size)));
    m_checkBox->setAccessibleDescription(singleLine(info.directory));
    m_layout->setContentsMargins(margin, 10, margin, 10);
    m_layout->setSpacing(spacing);
    m_layout->addWidget(m_checkBox);
}

void FileCard::setBuilt(bool on)
{
    if (on == isBuilt())
        return;
    if (on) {
        m_content = buildContent();
        m_layout->addWidget(m_content, 1);
        elideName();
    } else {
        delete m_content;
        m_content = nullptr;
    }
}

QWidget *FileCard::buildContent()
{
    auto *content = new QWidget(this);
    auto *layout = new QHBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);

    auto *icon = makeLabel(
        u"fileIcon"_s, iconOf(m_info.type),
        u"background-color: %1; border-radius: 8px; font-size: 16px;"_s.arg(theme::button),
        content);
    icon->setFixedSize(iconSize, iconSize);
    icon->setAlignment(Qt::AlignCenter);
    layout->addWidget(icon);

    auto *names = new QVBoxLayout;
    names->setSpacing(2);
    m_name = new ElidedLabel(m_info.name, content);
    m_name->setObjectName("fileName"_L1);
    m_name->setStyleSheet(theme::label(theme::text, 14, 600));
    auto *folder = makeLabel(u"fileFolder"_s, shortPath(singleLine(m_info.directory), 25, 22),
                             theme::label(theme::faint, 11), content);
    folder->setToolTip(plainToolTip(m_info.directory));
    folder->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    names->addWidget(m_name);
    names->addWidget(folder);
    layout->addLayout(names, 1);

    const bool isHuge = m_info.size > gibibyte;
    m_badge = makeLabel(u"sizeBadge"_s, formatSize(m_info.size),
                        isHuge ? theme::sizeBadge(theme::dangerHover, theme::dangerTint)
                               : theme::sizeBadge(theme::text, theme::button),
                        content);
    layout->addWidget(m_badge, 0, Qt::AlignVCenter);
    return content;
}

void FileCard::elideName()
{
    if (!isBuilt())
        return;
    m_badge->ensurePolished();
    const int others = m_checkBox->sizeHint().width() + iconSize + m_badge->sizeHint().width();
    m_name->elideTo(width() - 2 * margin - 3 * spacing - others);
}

void FileCard::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    elideName();
}
