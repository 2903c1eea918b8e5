#include "detailitemwidget.h"

#include "elidedlabel.h"
#include "parts.h"
#include "scanresult.h"
#include "svgicon.h"
#include "text.h"
#include "theme.h"
#include "tooltip.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int sizeColumn = 100;
constexpr int actionColumn = 190;

} // namespace

DetailItemWidget::DetailItemWidget(const CleanItem &item, bool striped, QWidget *parent)
    : QWidget(parent)
    , m_path(item.path)
{
    setObjectName("detailItem"_L1);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(theme::detailRow(striped));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(20, 6, 20, 6);
    layout->setSpacing(12);

    m_name = new ElidedLabel(item.name, this);
    m_name->setObjectName("itemName"_L1);
    m_name->setStyleSheet(theme::label(theme::text, 13));
    m_name->setToolTip(plainToolTip(item.path.left(1024)));
    layout->addWidget(m_name, 1);

    if (item.registryRoot.isEmpty()) {
        m_name->setToolTip(plainToolTip(item.path.left(1024), item.description));
        setToolTip(plainToolTip(item.description));
        setAccessibleDescription(singleLine(item.description));
        addFileColumns(item);
        return;
    }
    const QString description = item.description.isEmpty() ? item.path : item.description;
    m_description = new ElidedLabel(description, this);
    m_description->setObjectName("itemDescription"_L1);
    m_description->setStyleSheet(theme::label(theme::muted, 12));
    m_description->setToolTip(plainToolTip(item.path.left(1024)));
    m_description->setMinimumHeight(30);
    layout->addWidget(m_description, 1);
}

void DetailItemWidget::addFileColumns(const CleanItem &item)
{
    QLabel *size = parts::label(formatSize(item.size), theme::label(theme::muted, 12, 500), this);
    size->setObjectName("itemSize"_L1);
    size->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    size->setFixedWidth(sizeColumn);
    layout()->addWidget(size);

    QPushButton *button =
        parts::button(u"openLocationBtn"_s, tr("Open file location"),
                      theme::quietButton({.radius = theme::smallRadius, .fontSize = 12}), this);
    button->setIcon(QIcon(svgPixmap(u":/icons/folder-open.svg"_s, {18, 18}, devicePixelRatioF())));
    button->setIconSize({18, 18});
    button->setFixedWidth(actionColumn);
    button->setMinimumHeight(30);
    button->setAutoDefault(false);
    button->setAccessibleName(tr("Open file location of %1").arg(singleLine(item.name)));
    button->setAccessibleDescription(singleLine(item.description));
    button->setWhatsThis(plainToolTip(item.description));
    connect(button, &QPushButton::clicked, this, [this] { Q_EMIT openLocationRequested(m_path); });
    layout()->addWidget(button);
}

void DetailItemWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (m_description) {
        const int half = (width() - 52) / 2;
        m_name->elideTo(half);
        m_description->elideTo(half);
    } else {
        m_name->elideTo(width() - sizeColumn - actionColumn - 64);
    }
}
