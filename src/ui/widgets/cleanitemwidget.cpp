#include "cleanitemwidget.h"

#include "elidedlabel.h"
#include "parts.h"
#include "risk.h"
#include "scanresult.h"
#include "text.h"
#include "theme.h"
#include "tooltip.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// Widths in pixels of the columns beside the texts: check box, risk badge, size. Together with
// margins and spacing they make reservedWidth. The texts get the remaining width.
constexpr int margin = 10;
constexpr int spacing = 8;
constexpr int checkBoxWidth = 18;
constexpr int riskWidth = 58;
constexpr int sizeWidth = 66;
constexpr int reservedWidth = 186;
static_assert(2 * margin + 3 * spacing + checkBoxWidth + riskWidth + sizeWidth == reservedWidth);

/// characters; the remark on a registry entry may quote a value of any length
constexpr qsizetype maxRemarkLength = 1024;

} // namespace

CleanItemWidget::CleanItemWidget(CleanCategory *category, qsizetype index, QWidget *parent)
    : QWidget(parent)
    , m_category(category)
    , m_index(index)
{
    setObjectName("cleanItemWidget"_L1);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(margin, 8, margin, 8);
    layout->setSpacing(spacing);

    m_checkBox = new QCheckBox(this);
    m_checkBox->setChecked(item().checked);
    m_checkBox->setAccessibleName(singleLine(item().name));
    QStringList descriptionParts{risk::sentence(item().riskLevel), formatSize(item().size),
                                 singleLine(item().path)};
    const QString remark = singleLine(item().description.left(maxRemarkLength));
    if (!remark.isEmpty())
        descriptionParts.append(remark);
    m_checkBox->setAccessibleDescription(descriptionParts.join(", "_L1));
    setToolTip(plainToolTip(remark));
    connect(m_checkBox, &QCheckBox::toggled, this, &CleanItemWidget::checkChanged);
    m_checkBox->setFixedWidth(checkBoxWidth);
    layout->addWidget(m_checkBox);
    setFocusProxy(m_checkBox);

    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    m_name = new ElidedLabel(item().name, this);
    m_name->setObjectName("itemName"_L1);
    m_name->setStyleSheet(theme::label(theme::text, 13));
    m_path = new ElidedLabel(item().path, this);
    m_path->setObjectName("itemPath"_L1);
    m_path->setStyleSheet(theme::label(theme::faint, 11));
    for (ElidedLabel *label : {m_name, m_path})
        label->setRemark(remark);
    texts->addWidget(m_name);
    texts->addWidget(m_path);
    layout->addLayout(texts, 1);

    m_risk = parts::centredLabel(risk::text(item().riskLevel), risk::style(item().riskLevel), this);
    m_risk->setObjectName("itemRisk"_L1);
    m_risk->setFixedWidth(riskWidth);
    layout->addWidget(m_risk, 0, Qt::AlignVCenter);
    m_size = parts::label(formatSize(item().size), theme::label(theme::muted, 12, 500), this);
    m_size->setObjectName("itemSize"_L1);
    m_size->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_size->setFixedWidth(sizeWidth);
    layout->addWidget(m_size);
}

const CleanItem &CleanItemWidget::item() const
{
    return m_category->items.at(m_index);
}

bool CleanItemWidget::isChecked() const
{
    return m_checkBox->isChecked();
}

void CleanItemWidget::showChecked(bool checked)
{
    const QSignalBlocker blocker(m_checkBox);
    m_checkBox->setChecked(checked);
}

void CleanItemWidget::storeChecked()
{
    if (item().checked != isChecked())
        m_category->items[m_index].checked = isChecked();
}

void CleanItemWidget::setShowSizes(bool show)
{
    m_size->setVisible(show);
}

void CleanItemWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_name->elideTo(width() - reservedWidth);
    m_path->elideTo(width() - reservedWidth);
}

void CleanItemWidget::enterEvent(QEnterEvent *)
{
    m_isHovered = true;
    update();
}

void CleanItemWidget::leaveEvent(QEvent *)
{
    m_isHovered = false;
    update();
}

void CleanItemWidget::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        m_checkBox->toggle();
}

void CleanItemWidget::paintEvent(QPaintEvent *)
{
    if (!m_isHovered)
        return;
    QPainter painter(this);
    painter.fillRect(rect(), theme::color(theme::pageBackground));
}
