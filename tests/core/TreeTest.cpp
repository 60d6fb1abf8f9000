#include "core/BookNames.h"
#include "core/clsPopulate.h"
#include "reader/frmMain.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

class Tree : public ProgramFixture {
protected:
    TreeView& startedTree() {
        startProgram();
        return form<frmMain>().tree;
    }

    static QImage picture(const QIcon& icon, QIcon::Mode mode = QIcon::Normal) {
        return icon.pixmap(32, mode).toImage();
    }

    // The icon that shows one picture, or two in turn.
    static QIcon icon(const QString& closed, const QString& open = {}) {
        QIcon icon(u":/icons/tree/"_s + closed + u".svg"_s);
        if (!open.isEmpty())
            icon.addFile(u":/icons/tree/"_s + open + u".svg"_s, {}, QIcon::Selected);
        return icon;
    }
};

} // namespace

TEST_F(Tree, holdsBothTestamentsAllBooksAndAllChapters) {
    EXPECT_EQ(startedTree().NodeCount(), 2 + 66 + 1189);
}

TEST_F(Tree, rootsBooksAndChaptersHaveTheirKeysAndTexts) {
    const TreeView& tree = startedTree();
    EXPECT_EQ(tree.node(u"Root1"_s)->text(0), u"Old Testament"_s);
    EXPECT_EQ(tree.node(u"Root2"_s)->text(0), u"New Testament"_s);
    EXPECT_EQ(tree.node(u"Root1"_s)->childCount(), 39);
    EXPECT_EQ(tree.node(u"Root2"_s)->childCount(), 27);
    for (int book = 1; book <= 66; ++book) {
        const QTreeWidgetItem* node = tree.node(u'X' + QString::number(book));
        ASSERT_NE(node, nullptr) << book;
        EXPECT_EQ(node->text(0), BookNamesEnglish[static_cast<size_t>(book)]);
        EXPECT_EQ(node->parent(), tree.node(book < 40 ? u"Root1"_s : u"Root2"_s));
        EXPECT_EQ(node->childCount(), ChaptersInBook[static_cast<size_t>(book)]);
    }
    EXPECT_EQ(tree.node(u"19:119"_s)->text(0), u"119"_s);
    EXPECT_EQ(tree.node(u"19:119"_s)->parent(), tree.node(u"X19"_s));
}

TEST_F(Tree, nodesHaveTheirPictures) {
    struct Node {
        QString key;
        QString text;
        QString parent;
        QIcon icon;
    };
    const QIcon green = icon(u"green-closed"_s, u"green-open"_s);
    const QIcon red = icon(u"red-closed"_s, u"red-open"_s);
    const QIcon chapter = icon(u"chapter"_s);
    const TreeView& tree = startedTree();
    const Node nodes[] = {
        {u"Root1"_s, u"Old Testament"_s, {}, green}, {u"Root2"_s, u"New Testament"_s, {}, red},
        {u"X1"_s, u"Genesis"_s, u"Root1"_s, green},  {u"X39"_s, u"Malachi"_s, u"Root1"_s, green},
        {u"X40"_s, u"Matthew"_s, u"Root2"_s, red},   {u"X66"_s, u"Revelation"_s, u"Root2"_s, red},
        {u"1:1"_s, u"1"_s, u"X1"_s, chapter},        {u"40:28"_s, u"28"_s, u"X40"_s, chapter},
        {u"66:22"_s, u"22"_s, u"X66"_s, chapter},
    };
    for (const Node& node : nodes) {
        const QTreeWidgetItem* item = tree.node(node.key);
        ASSERT_NE(item, nullptr) << node.key.toStdString();
        EXPECT_EQ(item->text(0), node.text);
        EXPECT_EQ(item->parent(), tree.node(node.parent)) << node.key.toStdString();
        for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected})
            EXPECT_EQ(picture(item->icon(0), mode), picture(node.icon, mode))
                << node.key.toStdString() << " " << mode;
    }
}

TEST_F(Tree, picturesDiffer) {
    QList<QImage> pictures;
    for (const QString& name :
         {u"green-closed"_s, u"green-open"_s, u"red-closed"_s, u"red-open"_s, u"chapter"_s}) {
        pictures.append(picture(icon(name)));
        EXPECT_FALSE(pictures.last().isNull()) << name.toStdString();
        EXPECT_EQ(pictures.indexOf(pictures.last()), pictures.size() - 1) << name.toStdString();
    }
}

TEST_F(Tree, showsTheNamesOfTheTranslationLoadedAtStart) {
    addTranslation(u"French.mdb"_s, sampleVerses());
    EXPECT_EQ(startedTree().node(u"X1"_s)->text(0), u"Genèse"_s);
}
