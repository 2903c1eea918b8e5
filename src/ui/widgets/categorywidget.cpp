#include "categorywidget.h"

#include "browser.h"
#include "cleanitemwidget.h"
#include "itemdetaildialog.h"
#include "parts.h"
#include "risk.h"
#include "scanresult.h"
#include "svglabel.h"
#include "text.h"
#include "theme.h"
#include "tooltip.h"

#include <QCheckBox>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype pageSize = 10;

// A browser category has the icon of its kind of data, the same for all browsers.
QString iconPath(const CleanCategory &category)
{
    const QString id = browsers::originOf(category).ruleId;
    const QString path = u":/icons/categories/%1.svg"_s.arg(id);
    // The id comes from a rule file. It must be a plain name, because it becomes part of a path.
    return !id.contains(u'/') && QFile::exists(path) ? path : u":/icons/categories/default.svg"_s;
}

} // namespace

CategoryWidget::CategoryWidget(CleanCategory *category, QWidget *parent)
    : ResultWidget(parent)
    , m_category(category)
    , m_header(new QWidget(this))
    , m_content(new QWidget(this))
    , m_contentLayout(new QVBoxLayout(m_content))
{
    // The items of an unchecked category come checked. They are unchecked here: otherwise a user
    // who unchecks one item would select all the others.
    if (!category->checked)
        category->setChecked(false);

    setObjectName("categoryWidget"_L1);
    setAttribute(Qt::WA_StyledBackground);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    m_header->setObjectName("categoryHeader"_L1);
    m_header->setAttribute(Qt::WA_StyledBackground);
    m_header->setToolTip(plainToolTip(category->description));
    buildHeader();
    layout->addWidget(m_header);

    m_content->setObjectName("categoryContent"_L1);
    m_content->setAttribute(Qt::WA_StyledBackground);
    m_content->hide();
    m_contentLayout->setContentsMargins(8, 4, 8, 8);
    m_contentLayout->setSpacing(0);
    layout->addWidget(m_content);

    refreshHeader();
}

CategoryWidget::~CategoryWidget()
{
    // The dialog shows the record of this widget and must not outlive the widget.
    delete m_details;
}

void CategoryWidget::buildHeader()
{
    auto *layout = new QHBoxLayout(m_header);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->setSpacing(12);

    auto *icon = new SvgLabel(m_header);
    icon->setObjectName("categoryIcon"_L1);
    icon->setFixedSize(32, 32);
    icon->setStyleSheet(theme::categoryIcon());
    icon->setSvg(iconPath(*m_category), {22, 22});
    layout->addWidget(icon);

    m_name =
        parts::label(singleLine(m_category->name), theme::label(theme::text, 14, 500), m_header);
    layout->addWidget(m_name);

    m_count = parts::button(u"itemCount"_s, {}, theme::badgeButton(), m_header);
    m_count->setToolTip(tr("View Details"));
    connect(m_count, &QPushButton::clicked, this, &CategoryWidget::showDetails);
    layout->addWidget(m_count);
    if (m_category->riskLevel > LowRisk) {
        QLabel *badge = parts::label(risk::text(m_category->riskLevel),
                                     risk::style(m_category->riskLevel), m_header);
        badge->setObjectName("categoryRisk"_L1);
        layout->addWidget(badge, 0, Qt::AlignVCenter);
    }
    layout->addStretch();

    m_size = parts::label({}, theme::label(theme::accent, 13, 600), m_header);
    m_size->setObjectName("categorySize"_L1);
    layout->addWidget(m_size);

    m_checkBox = new QCheckBox(m_header);
    m_checkBox->setObjectName("categoryCheck"_L1);
    m_checkBox->setAccessibleName(m_name->text());
    m_checkBox->setAccessibleDescription(risk::description(*m_category));
    m_checkBox->setWhatsThis(plainToolTip(m_checkBox->accessibleDescription()));
    connect(m_checkBox, &QCheckBox::clicked, this, &CategoryWidget::setChecked);
    layout->addWidget(m_checkBox);

    m_expandButton = parts::button(u"expandBtn"_s, {}, theme::expandButton(), m_header);
    setExpander(m_header, m_expandButton);
    m_expandButton->setText(u"▼"_s);
    m_expandButton->setFixedSize(28, 28);
    m_expandButton->setAccessibleName(tr("Show items of %1").arg(m_name->text()));
    layout->addWidget(m_expandButton);
}

void CategoryWidget::setShowSizes(bool show)
{
    m_showSizes = show;
    showSelection();
    for (CleanItemWidget *widget : std::as_const(m_itemWidgets))
        widget->setShowSizes(show);
}

void CategoryWidget::setChecked(bool checked)
{
    m_category->setChecked(checked);
    for (CleanItemWidget *widget : std::as_const(m_itemWidgets))
        widget->showChecked(checked);
    refreshHeader();
    Q_EMIT selectionChanged();
}

void CategoryWidget::showExpanded(bool expanded)
{
    m_category->expanded = expanded;
    m_expandButton->setText(expanded ? u"▲"_s : u"▼"_s);
    if (expanded && m_loadedCount == 0)
        loadMore();
    m_content->setVisible(expanded);
    Q_EMIT expandedChanged(expanded);
}

void CategoryWidget::showDetails()
{
    m_details = new ItemDetailDialog(m_category, window());
    m_details->setAttribute(Qt::WA_DeleteOnClose);
    m_details->setModal(true);
    m_details->show();
}

void CategoryWidget::loadMore()
{
    if (m_loadMoreButton)
        m_contentLayout->removeWidget(m_loadMoreButton);
    const qsizetype end = qMin(m_loadedCount + pageSize, m_category->items.size());
    for (qsizetype index = m_loadedCount; index < end; ++index) {
        auto *widget = new CleanItemWidget(m_category, index, m_content);
        widget->setShowSizes(m_showSizes);
        connect(widget, &CleanItemWidget::checkChanged, this, &CategoryWidget::onItemCheckChanged);
        m_itemWidgets.append(widget);
        m_contentLayout->addWidget(widget);
    }
    m_loadedCount = end;
    showRemaining();
    orderFocus();
}

void CategoryWidget::showRemaining()
{
    const qsizetype remaining = m_category->items.size() - m_loadedCount;
    if (remaining < 1) {
        if (m_loadMoreButton)
            m_loadMoreButton->hide();
        return;
    }
    if (!m_loadMoreButton) {
        m_loadMoreButton = parts::button(u"loadMoreBtn"_s, {}, theme::loadMoreButton(), m_content);
        connect(m_loadMoreButton, &QPushButton::clicked, this, &CategoryWidget::loadMore);
    }
    m_loadMoreButton->setText(tr("Load more (%1 remaining)").arg(remaining));
    m_contentLayout->addWidget(m_loadMoreButton);
}

void CategoryWidget::onItemCheckChanged()
{
    for (CleanItemWidget *widget : std::as_const(m_itemWidgets))
        widget->storeChecked();
    m_category->checked = std::any_of(m_category->items.cbegin(), m_category->items.cend(),
                                      [](const CleanItem &item) { return item.checked; });
    refreshHeader();
    Q_EMIT selectionChanged();
}

void CategoryWidget::refreshHeader()
{
    m_count->setText(tr("%1 items").arg(m_category->items.size()));
    m_count->setAccessibleName(tr("%1: %2 items, view details")
                                   .arg(m_name->text(), QString::number(m_category->items.size())));
    m_selection = m_category->checkedItems();
    showSelection();
}

void CategoryWidget::showSelection()
{
    if (m_showSizes)
        m_size->setText(formatSize(m_selection.size));
    m_size->setVisible(m_showSizes);
    // The user cannot choose the partly checked state: a click checks all items.
    const QSignalBlocker blocker(m_checkBox);
    const Qt::CheckState state = m_category->checkState(m_selection.count);
    m_checkBox->setTristate(state == Qt::PartiallyChecked);
    m_checkBox->setCheckState(state);
}

QList<QWidget *> CategoryWidget::focusChain() const
{
    QList<QWidget *> chain{m_count, m_checkBox, m_expandButton};
    for (const CleanItemWidget *widget : m_itemWidgets)
        chain.append(widget->focusProxy());
    if (m_loadMoreButton)
        chain.append(m_loadMoreButton);
    return chain;
}

// Rows are created late and would come last in the tab order.
void CategoryWidget::orderFocus() const
{
    const QList<QWidget *> chain = focusChain();
    for (qsizetype i = 1; i < chain.size(); ++i)
        setTabOrder(chain.at(i - 1), chain.at(i));
}
