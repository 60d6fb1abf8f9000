#include "controls/TreeView.h"

namespace {

constexpr int KeyRole = Qt::UserRole;

QString keyOf(const QTreeWidgetItem* item) {
    return item ? item->data(0, KeyRole).toString() : QString();
}

} // namespace

TreeView::TreeView(QWidget* parent, const ControlText& text)
    : Control(parent, text) {
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setColumnCount(1);
    viewport()->setMouseTracking(true);
    connect(this, &QTreeWidget::itemClicked, this, [this](const QTreeWidgetItem* item) {
        NodeClick.raise(keyOf(item));
    });
}

void TreeView::setNodes(const QList<TreeNode>& nodes) {
    clear();
    m_nodes.clear();
    m_nodes.reserve(nodes.size());
    QList<QTreeWidgetItem*> roots;
    for (const TreeNode& node : nodes) {
        QTreeWidgetItem* item = makeItem(node);
        if (QTreeWidgetItem* parent = m_nodes.value(node.parent))
            parent->addChild(item);
        else
            roots.append(item);
        m_nodes.insert(node.key, item);
    }
    addTopLevelItems(roots);
}

QTreeWidgetItem* TreeView::makeItem(const TreeNode& node) {
    auto* item = new QTreeWidgetItem;
    item->setText(0, node.text);
    item->setIcon(0, iconOf(node));
    item->setData(0, KeyRole, node.key);
    return item;
}

QIcon TreeView::iconOf(const TreeNode& node) {
    QIcon& icon = m_icons[{node.image, node.selectedImage}];
    if (icon.isNull()) {
        icon.addFile(m_images.value(node.image));
        if (!node.selectedImage.isEmpty())
            icon.addFile(m_images.value(node.selectedImage), {}, QIcon::Selected);
    }
    return icon;
}

void TreeView::keyPressEvent(QKeyEvent* event) {
    const QTreeWidgetItem* before = currentItem();
    Control::keyPressEvent(event);
    const bool confirmed = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (currentItem() && (confirmed || currentItem() != before))
        NodeClick.raise(keyOf(currentItem()));
}
