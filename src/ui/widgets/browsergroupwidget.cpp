#include "browsergroupwidget.h"

#include "browser.h"
#include "browsersubitem.h"
#include "parts.h"
#include "scanresult.h"
#include "svgicon.h"
#include "svglabel.h"
#include "text.h"
#include "theme.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

BrowserGroupWidget::BrowserGroupWidget(const QString &name, QWidget *parent)
    : ResultWidget(parent)
    , m_header(new QWidget(this))
    , m_content(new QWidget(this))
    , m_contentLayout(new QVBoxLayout(m_content))
{
    setObjectName("browserGroupWidget"_L1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    m_header->setObjectName("browserGroupHeader"_L1);
    m_header->setAttribute(Qt::WA_StyledBackground);
    buildHeader(singleLine(name));
    layout->addWidget(m_header);

    m_content->setObjectName("browserGroupContent"_L1);
    m_content->setAttribute(Qt::WA_StyledBackground);
    m_content->setStyleSheet(theme::browserGroupContent());
    m_contentLayout->setContentsMargins(1, 6, 1, 8);
    m_contentLayout->setSpacing(0);
    layout->addWidget(m_content);
    BrowserGroupWidget::showExpanded(false);
}

QString BrowserGroupWidget::iconPath(const QString &name)
{
    return u":/icons/%1.svg"_s.arg(browsers::iconName(name));
}

void BrowserGroupWidget::buildHeader(const QString &name)
{
    auto *layout = new QHBoxLayout(m_header);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->setSpacing(12);

    auto *icon = new SvgLabel(m_header);
    icon->setObjectName("browserIcon"_L1);
    icon->setFixedSize(36, 36);
    icon->setStyleSheet(theme::browserIcon());
    icon->setSvg(iconPath(name), {28, 28});
    layout->addWidget(icon);

    QLabel *title = parts::label(name, theme::label(theme::text, 15, 600), m_header);
    title->setObjectName("browserName"_L1);
    layout->addWidget(title);

    m_count = parts::label(
        {}, theme::badge({.colour = theme::text, .background = theme::buttonBackground}), m_header);
    m_count->setObjectName("browserItemCount"_L1);
    m_count->hide();
    layout->addWidget(m_count, 0, Qt::AlignVCenter);
    layout->addStretch();

    m_checkBox = new QCheckBox(m_header);
    m_checkBox->setObjectName("browserCheck"_L1);
    m_checkBox->setAccessibleName(name);
    connect(m_checkBox, &QCheckBox::stateChanged, this, &BrowserGroupWidget::onHeaderChanged);
    layout->addWidget(m_checkBox);

    m_expandButton = parts::button(u"browserExpandBtn"_s, {}, theme::iconButton(), m_header);
    setExpander(m_header, m_expandButton);
    m_expandButton->setFixedSize(28, 28);
    m_expandButton->setIconSize({20, 20});
    m_expandButton->setAccessibleName(tr("Show the data of %1").arg(name));
    layout->addWidget(m_expandButton);
}

void BrowserGroupWidget::addCategory(CleanCategory *category)
{
    auto *subItem = new BrowserSubItem(category, m_content);
    subItem->setShowSizes(m_showSizes);
    connect(subItem, &BrowserSubItem::checkChanged, this, [this] {
        showCheckState();
        Q_EMIT selectionChanged();
    });
    m_subItems.append(subItem);
    m_contentLayout->addWidget(subItem);
    showCheckState();
    showCount();
}

void BrowserGroupWidget::setIncluded(bool included)
{
    for (BrowserSubItem *subItem : std::as_const(m_subItems))
        subItem->setIncluded(included);
    m_checkBox->setEnabled(included);
    showCheckState();
    Q_EMIT selectionChanged();
}

void BrowserGroupWidget::setShowSizes(bool show)
{
    m_showSizes = show;
    for (BrowserSubItem *subItem : std::as_const(m_subItems))
        subItem->setShowSizes(show);
}

QList<QWidget *> BrowserGroupWidget::focusChain() const
{
    QList<QWidget *> chain{m_checkBox, m_expandButton};
    for (const BrowserSubItem *subItem : m_subItems)
        chain += subItem->focusChain();
    return chain;
}

Selection BrowserGroupWidget::selection() const
{
    Selection sum;
    for (const BrowserSubItem *subItem : m_subItems) {
        if (subItem->category().checked)
            sum += subItem->category().checkedItems();
    }
    return sum;
}

// The user cannot choose the partly checked state. A click checks all items except the guarded
// ones. When only guarded items are unchecked, a click unchecks everything.
void BrowserGroupWidget::onHeaderChanged(int state)
{
    if (state == Qt::PartiallyChecked)
        return;
    const bool shouldTick = state == Qt::Checked
        && std::any_of(m_subItems.cbegin(), m_subItems.cend(),
                       [](const BrowserSubItem *subItem) { return subItem->hasMoreToTick(); });
    for (BrowserSubItem *subItem : std::as_const(m_subItems)) {
        if (shouldTick)
            subItem->tickUnguarded();
        else
            subItem->setChecked(false);
    }
    showCheckState();
    Q_EMIT selectionChanged();
}

void BrowserGroupWidget::showCheckState()
{
    const auto areAll = [this](Qt::CheckState state) {
        return std::all_of(
            m_subItems.begin(), m_subItems.end(),
            [state](const BrowserSubItem *subItem) { return subItem->checkState() == state; });
    };
    const Qt::CheckState state = areAll(Qt::Unchecked) ? Qt::Unchecked
        : areAll(Qt::Checked)                          ? Qt::Checked
                                                       : Qt::PartiallyChecked;
    const QSignalBlocker blocker(m_checkBox);
    m_checkBox->setTristate(state == Qt::PartiallyChecked);
    m_checkBox->setCheckState(state);
}

void BrowserGroupWidget::showCount()
{
    qsizetype count = 0;
    for (const BrowserSubItem *subItem : std::as_const(m_subItems))
        count += subItem->category().items.size();
    m_count->setText(tr("%1 items").arg(count));
    m_checkBox->setAccessibleDescription(m_count->text());
    m_count->setVisible(count >= 1);
}

void BrowserGroupWidget::showExpanded(bool expanded)
{
    m_header->setStyleSheet(theme::browserGroupHeader(expanded));
    m_content->setVisible(expanded);
    const QString icon = expanded ? u":/icons/chevron-up.svg"_s : u":/icons/chevron-down.svg"_s;
    m_expandButton->setIcon(QIcon(svgPixmap(icon, {20, 20}, devicePixelRatioF())));
}
