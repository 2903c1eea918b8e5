#include "browsersubitem.h"

#include "browser.h"
#include "itemdetaildialog.h"
#include "parts.h"
#include "risk.h"
#include "scanresult.h"
#include "svgicon.h"
#include "text.h"
#include "theme.h"
#include "tooltip.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

BrowserSubItem::BrowserSubItem(CleanCategory *category, QWidget *parent)
    : QWidget(parent)
    , m_category(category)
    , m_checkBox(new QCheckBox(this))
    , m_size(parts::label(formatSize(category->totalSize()), theme::label(theme::muted, 12, 500),
                          this))
    , m_detailsButton(
          parts::button(u"viewDetailsBtn"_s, tr("View Details"), theme::linkButton(), this))
{
    // The items of an unchecked category come checked. They are unchecked here, because the row and
    // its items must agree.
    if (!category->checked)
        category->setChecked(false);

    setObjectName("browserSubItem"_L1);
    setAttribute(Qt::WA_StyledBackground);
    setToolTip(plainToolTip(category->description));
    // The group header already shows the name of the browser.
    const QString name = singleLine(browsers::originOf(*category).ruleName);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 7, 12, 7);
    layout->setSpacing(12);

    m_checkBox->setObjectName("subItemCheck"_L1);
    m_checkBox->setAccessibleName(name);
    m_checkBox->setAccessibleDescription(risk::description(*category));
    m_checkBox->setWhatsThis(plainToolTip(m_checkBox->accessibleDescription()));
    showCheckState();
    connect(m_checkBox, &QCheckBox::stateChanged, this, &BrowserSubItem::onStateChanged);
    layout->addWidget(m_checkBox);

    QLabel *label = parts::label(name, theme::label(theme::text, 13), this);
    label->setObjectName("subItemName"_L1);
    layout->addWidget(label);
    if (category->riskLevel > LowRisk) {
        QLabel *badge =
            parts::label(risk::text(category->riskLevel), risk::style(category->riskLevel), this);
        badge->setObjectName("subItemRisk"_L1);
        layout->addWidget(badge, 0, Qt::AlignVCenter);
    }
    layout->addStretch();

    QLabel *count = parts::label(tr("%1 items").arg(category->items.size()),
                                 theme::label(theme::muted, 12), this);
    count->setObjectName("subItemCount"_L1);
    layout->addWidget(count);

    m_size->setObjectName("subItemSize"_L1);
    m_size->setMinimumWidth(76);
    m_size->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    layout->addWidget(m_size);

    m_detailsButton->setIcon(
        QIcon(svgPixmap(u":/icons/chevron-right.svg"_s, {16, 16}, devicePixelRatioF())));
    m_detailsButton->setLayoutDirection(Qt::RightToLeft); // puts the arrow after the text
    m_detailsButton->setAccessibleName(tr("View details of %1").arg(name));
    connect(m_detailsButton, &QPushButton::clicked, this, &BrowserSubItem::showDetails);
    layout->addWidget(m_detailsButton);
}

BrowserSubItem::~BrowserSubItem()
{
    // The dialog shows the record of this row and must not outlive the row.
    delete m_details;
}

Qt::CheckState BrowserSubItem::checkState() const
{
    return m_checkBox->checkState();
}

void BrowserSubItem::setChecked(bool checked)
{
    m_category->setChecked(checked);
    showCheckState();
}

bool BrowserSubItem::hasMoreToTick() const
{
    return std::any_of(m_category->items.cbegin(), m_category->items.cend(),
                       [this](const CleanItem &item) {
                           return !(m_category->checked && item.checked) && !isGuarded(item);
                       });
}

void BrowserSubItem::tickUnguarded()
{
    // The items may still be checked although their category was not.
    if (!m_category->checked)
        m_category->setChecked(false);
    for (CleanItem &item : m_category->items)
        item.checked = item.checked || !isGuarded(item);
    m_category->checked = m_category->checkedCount() > 0;
    showCheckState();
}

// An engine gives an item a higher risk than its category when it knows more about the item.
bool BrowserSubItem::isGuarded(const CleanItem &item) const
{
    return item.riskLevel > m_category->riskLevel;
}

void BrowserSubItem::setIncluded(bool included)
{
    if (std::exchange(m_isIncluded, included) == included)
        return;
    // The items keep their check states. They have no effect while the category is unchecked.
    if (!included)
        m_wasChecked = m_category->checked;
    m_category->checked = included && m_wasChecked;
    m_checkBox->setEnabled(included);
    showCheckState();
}

void BrowserSubItem::setShowSizes(bool show)
{
    m_size->setVisible(show);
}

QList<QWidget *> BrowserSubItem::focusChain() const
{
    return {m_checkBox, m_detailsButton};
}

void BrowserSubItem::showDetails()
{
    m_details = new ItemDetailDialog(m_category, window());
    m_details->setAttribute(Qt::WA_DeleteOnClose);
    m_details->setModal(true);
    m_details->show();
}

// The user cannot choose the partly checked state: a click checks all items. When all items except
// the guarded ones are checked, a click unchecks everything. A user must not check guarded items by
// accident.
void BrowserSubItem::onStateChanged(int state)
{
    if (state == Qt::PartiallyChecked)
        return;
    const bool wasUnticked = m_category->checkState() == Qt::Unchecked;
    setChecked(state == Qt::Checked && (wasUnticked || hasMoreToTick()));
    Q_EMIT checkChanged();
}

void BrowserSubItem::showCheckState()
{
    const QSignalBlocker blocker(m_checkBox);
    const Qt::CheckState state = m_category->checkState();
    m_checkBox->setTristate(state == Qt::PartiallyChecked);
    m_checkBox->setCheckState(state);
}
