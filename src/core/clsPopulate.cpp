#include "core/clsPopulate.h"

#include "controls/TreeView.h"
#include "core/BookNames.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int FirstBookOfNewTestament = 40;

struct Testament {
    QString key;
    QString name;
    QString closedImage;
    QString openImage;
};

const Testament oldTestament{u"Root1"_s, u"Old Testament"_s, u"GreenClosed"_s, u"GreenOpen"_s};
const Testament newTestament{u"Root2"_s, u"New Testament"_s, u"RedClosed"_s, u"RedOpen"_s};

void addBook(QList<TreeNode>& nodes, int book) {
    const Testament& testament = book < FirstBookOfNewTestament ? oldTestament : newTestament;
    const QString number = QString::number(book);
    const QString key = u'X' + number;
    nodes.append(
        {key, BookNames[static_cast<size_t>(book) - 1], testament.closedImage, testament.openImage,
         testament.key});
    for (int chapter = 1; chapter <= ChaptersInBook[static_cast<size_t>(book)]; ++chapter) {
        const QString text = QString::number(chapter);
        nodes.append({number + u':' + text, text, u"Chapter"_s, {}, key});
    }
}

} // namespace

void clsPopulate::PopulateTree(TreeView& tree) {
    QList<TreeNode> nodes;
    for (const Testament& testament : {oldTestament, newTestament})
        nodes.append(
            {testament.key, testament.name, testament.closedImage, testament.openImage, {}});
    for (int book = 1; book <= BookCount; ++book)
        addBook(nodes, book);
    tree.setNodes(nodes);
}
