// A tree of nodes, each known by a key.
#pragma once

#include "controls/Control.h"

#include <QHash>
#include <QIcon>
#include <QTreeWidget>

// Picture files by name.
using ImageList = QHash<QString, QString>;

struct TreeNode {
    QString key;
    QString text;
    QString image;         // in the image list
    QString selectedImage; // in the place of `image` while the node is selected; may be empty
    QString parent;        // its key; empty for a root
};

class TreeView : public Control<QTreeWidget> {
public:
    // A node was clicked, reached by a key, or confirmed by Enter; its key.
    Event<QString> NodeClick;

    TreeView(QWidget* parent, const ControlText& text);

    void setImageList(const ImageList& images) { m_images = images; }

    // Takes all nodes in the place of those it has. A parent stands before its children;
    // a node whose parent is unknown becomes a root.
    void setNodes(const QList<TreeNode>& nodes);

    int NodeCount() const { return static_cast<int>(m_nodes.size()); }

    // The node of a key, or null.
    const QTreeWidgetItem* node(const QString& key) const { return m_nodes.value(key); }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QTreeWidgetItem* makeItem(const TreeNode& node);
    QIcon iconOf(const TreeNode& node);

    ImageList m_images;
    QHash<std::pair<QString, QString>, QIcon> m_icons;
    QHash<QString, QTreeWidgetItem*> m_nodes;
};
