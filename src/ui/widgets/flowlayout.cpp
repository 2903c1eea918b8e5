#include "flowlayout.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

FlowLayout::FlowLayout(QWidget *parent)
    : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout() = default;

void FlowLayout::setSpacing(int horizontal, int vertical)
{
    m_horizontal = horizontal;
    m_vertical = vertical;
}

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.emplace_back(item);
}

int FlowLayout::count() const
{
    return static_cast<int>(m_items.size());
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    const auto position = m_items.begin() + index;
    QLayoutItem *item = position->release();
    m_items.erase(position);
    return item;
}

int FlowLayout::heightForWidth(int width) const
{
    return placesIn({0, 0, width, 0}).height;
}

QSize FlowLayout::sizeHint() const
{
    QSize size(0, 0);
    for (const auto &item : m_items) {
        const QSize hint = item->sizeHint();
        size = {size.width() + hint.width() + (size.width() > 0 ? m_horizontal : 0),
                std::max(size.height(), hint.height())};
    }
    return size;
}

QSize FlowLayout::minimumSize() const
{
    QSize size(0, 0);
    for (const auto &item : m_items)
        size = size.expandedTo(item->minimumSize());
    return size;
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    const Places places = placesIn(rect);
    for (qsizetype i = 0; i < places.items.size(); ++i)
        m_items[static_cast<std::size_t>(i)]->setGeometry(
            QStyle::visualRect(parentWidget()->layoutDirection(), rect, places.items.at(i)));
}

// Items of a row are centred vertically.
FlowLayout::Places FlowLayout::placesIn(const QRect &rect) const
{
    Places places;
    int x = rect.x();
    int y = rect.y();
    int rowHeight = 0;
    qsizetype rowBegin = 0;
    const auto closeRow = [&] {
        for (qsizetype i = rowBegin; i < places.items.size(); ++i)
            places.items[i].translate(0, (rowHeight - places.items.at(i).height()) / 2);
        rowBegin = places.items.size();
    };
    for (const auto &item : m_items) {
        const QSize size = item->sizeHint();
        if (x > rect.x() && x + size.width() > rect.x() + rect.width()) {
            closeRow();
            x = rect.x();
            y += rowHeight + m_vertical;
            rowHeight = 0;
        }
        places.items.append({QPoint(x, y), size});
        rowHeight = std::max(rowHeight, size.height());
        x += size.width() + m_horizontal;
    }
    closeRow();
    places.height = y + rowHeight - rect.y();
    return places;
}
