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
    const TreeView& tree = startedTree();
    for (const QString& key : {u"Root1"_s, u"Root2"_s, u"X1"_s, u"X40"_s, u"1:1"_s})
        EXPECT_FALSE(tree.node(key)->icon(0).pixmap(16).isNull()) << key.toStdString();
    const QIcon book = tree.node(u"X1"_s)->icon(0);
    EXPECT_NE(book.pixmap(16, QIcon::Normal).toImage(), book.pixmap(16, QIcon::Selected).toImage());
    EXPECT_NE(book.pixmap(16).toImage(), tree.node(u"X40"_s)->icon(0).pixmap(16).toImage());
}

TEST_F(Tree, showsTheNamesOfTheTranslationLoadedAtStart) {
    addTranslation(u"French.mdb"_s, sampleVerses());
    EXPECT_EQ(startedTree().node(u"X1"_s)->text(0), u"Genèse"_s);
}
