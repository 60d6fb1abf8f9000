#include "controls/ListBox.h"

#include "basic/Error.h"

using namespace Qt::StringLiterals;

namespace {

void checkRow(int index, int first, int count) {
    if (index < first || index >= count)
        throw Error(Error::InvalidPropertyValue, u"Invalid property value"_s);
}

} // namespace

// Lines that are too long end in dots: whoever shows them has another place for the whole text.
ListBox::ListBox(QWidget* parent, const ControlText& text)
    : Control(parent, text) {
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setMouseTracking(true);
    connect(this, &QListWidget::itemDoubleClicked, this, [this] { DblClick.raise(); });
}

// The toolkit's current row is no selection: it is set by the focus alone.
int ListBox::ListIndex() const {
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.constFirst().row();
}

void ListBox::setListIndex(int index) {
    checkRow(index, -1, count());
    if (index == ListIndex())
        return;
    clearSelection();
    setCurrentRow(index);
    Click.raise();
}

QString ListBox::List(int index) const {
    checkRow(index, 0, count());
    return item(index)->text();
}

QString ListBox::Text() const {
    const int row = ListIndex();
    return row < 0 ? QString() : item(row)->text();
}

// The focus alone makes the first row the current one; without a selection, Down goes there and not
// past it.
void ListBox::keyPressEvent(QKeyEvent* event) {
    const int before = ListIndex();
    if (before < 0 && count() > 0 && event->key() == Qt::Key_Down)
        setCurrentRow(0, QItemSelectionModel::ClearAndSelect);
    else
        Control::keyPressEvent(event);
    if (ListIndex() >= 0 && ListIndex() != before)
        Click.raise();
}

// The other buttons pick nothing.
void ListBox::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    m_rowAtPress = ListIndex();
    Control::mousePressEvent(event);
}

void ListBox::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        Control::mouseDoubleClickEvent(event);
}

// The release behind a double click is no pick, and neither is one beside the rows.
void ListBox::mouseReleaseEvent(QMouseEvent* event) {
    Control::mouseReleaseEvent(event);
    const int before = std::exchange(m_rowAtPress, NotPressed);
    if (before == NotPressed || event->button() != Qt::LeftButton || ListIndex() < 0)
        return;
    if (ListIndex() != before || itemAt(event->position().toPoint()))
        Click.raise();
}
