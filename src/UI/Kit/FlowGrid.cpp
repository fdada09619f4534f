#include "UI/Kit/FlowGrid.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

FlowGrid::FlowGrid(int minItemWidth, int spacing, QWidget* parent)
    : QLayout(parent)
    , m_minItemWidth(minItemWidth) {
    setContentsMargins(0, 0, 0, 0);
    setSpacing(spacing);
}

FlowGrid::~FlowGrid() {
    qDeleteAll(m_items);
}

void FlowGrid::addItem(QLayoutItem* item) {
    m_items.append(item);
}

QLayoutItem* FlowGrid::takeAt(int index) {
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

QSize FlowGrid::minimumSize() const {
    int tallest = 0;
    for (const QLayoutItem* item : m_items)
        tallest = std::max(tallest, item->minimumSize().height());
    return {m_minItemWidth, tallest};
}

void FlowGrid::setGeometry(const QRect& area) {
    QLayout::setGeometry(area);
    arrange(area, true);
}

int FlowGrid::arrange(const QRect& area, bool move) const {
    QList<QLayoutItem*> shown;
    for (QLayoutItem* item : m_items) {
        if (!item->isEmpty())
            shown.append(item);
    }
    if (shown.isEmpty())
        return 0;
    const int columns = std::max(1, (area.width() + spacing()) / (m_minItemWidth + spacing()));
    const auto left = [&](int column) { return area.left() + column * (area.width() + spacing()) / columns; };
    int top = area.top();
    for (qsizetype row = 0; row < shown.size(); row += columns) {
        const auto items = shown.mid(row, columns);
        int height = 0;
        for (const QLayoutItem* item : items)
            height = std::max(height, item->sizeHint().height());
        for (int column = 0; move && column < items.size(); ++column) {
            const int width = left(column + 1) - spacing() - left(column);
            items[column]->setGeometry(QStyle::visualRect(parentWidget()->layoutDirection(), area,
                                                          QRect(left(column), top, width, height)));
        }
        top += height + spacing();
    }
    return top - spacing() - area.top();
}
