#include "controls/FlowLayout.h"

#include <QWidget>
#include <algorithm>

FlowLayout::FlowLayout(QWidget* parent, int spacing)
    : QLayout(parent) {
    setSpacing(spacing);
}

FlowLayout::~FlowLayout() {
    qDeleteAll(m_items);
}

void FlowLayout::addItem(QLayoutItem* item) {
    m_items.append(item);
}

int FlowLayout::count() const {
    return static_cast<int>(m_items.size());
}

QLayoutItem* FlowLayout::itemAt(int index) const {
    return m_items.value(index);
}

QLayoutItem* FlowLayout::takeAt(int index) {
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

int FlowLayout::heightForWidth(int width) const {
    const QMargins margins = contentsMargins();
    const QList<Row> rows = rowsFor(width - margins.left() - margins.right());
    int height = margins.top() + margins.bottom();
    for (const Row& row : rows)
        height += row.height;
    return height + spacing() * std::max<int>(0, static_cast<int>(rows.size()) - 1);
}

QSize FlowLayout::sizeHint() const {
    const QMargins margins = contentsMargins();
    int width = 0;
    for (const QLayoutItem* item : m_items)
        width += item->sizeHint().width() + spacing();
    width += margins.left() + margins.right();
    return {width, heightForWidth(width)};
}

QSize FlowLayout::minimumSize() const {
    QSize size;
    for (const QLayoutItem* item : m_items)
        size = size.expandedTo(item->minimumSize());
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

void FlowLayout::setGeometry(const QRect& area) {
    QLayout::setGeometry(area);
    QRect place = area.marginsRemoved(contentsMargins());
    for (const Row& row : rowsFor(place.width())) {
        placeRow(row, {place.left(), place.top(), place.width(), row.height});
        place.setTop(place.top() + row.height + spacing());
    }
}

QList<FlowLayout::Row> FlowLayout::rowsFor(int width) const {
    QList<Row> rows;
    for (QLayoutItem* item : m_items) {
        const QSize size = item->sizeHint();
        if (rows.isEmpty() || rows.constLast().width + spacing() + size.width() > width)
            rows.append(Row());
        Row& row = rows.last();
        row.width += size.width() + (row.items.isEmpty() ? 0 : spacing());
        row.height = std::max(row.height, size.height());
        row.items.append(item);
    }
    return rows;
}

// Items that want to grow share what the row has left.
void FlowLayout::placeRow(const Row& row, const QRect& area) const {
    const auto grows = [](const QLayoutItem* item) {
        return item->expandingDirections().testFlag(Qt::Horizontal);
    };
    const auto growing = static_cast<int>(std::ranges::count_if(row.items, grows));
    const int surplus = std::max(0, area.width() - row.width);
    int left = area.left();
    for (QLayoutItem* item : row.items) {
        const int width = item->sizeHint().width() + (grows(item) ? surplus / growing : 0);
        item->setGeometry({left, area.top(), width, area.height()});
        left += width + spacing();
    }
}
