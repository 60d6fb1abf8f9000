#include "controls/TreeView.h"

#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct SampleTree {
    TreeView tree{nullptr, {u"tree", u"Books"}};
    QStringList clicked;

    SampleTree() {
        tree.setNodes(
            {{u"Root1"_s, u"Old"_s, {}, {}, {}},
             {u"X1"_s, u"Genesis"_s, {}, {}, u"Root1"_s},
             {u"1:1"_s, u"1"_s, {}, {}, u"X1"_s},
             {u"Root2"_s, u"New"_s, {}, {}, {}}});
        tree.NodeClick.handleWith([this](const QString& key) { clicked.append(key); });
        tree.resize(300, 300);
        tree.show();
        tree.expandAll();
    }

    void click(const QString& key) {
        const QModelIndex index = tree.indexFromItem(tree.node(key));
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(index).center());
    }
};

} // namespace

TEST(TreeView, nodesStandUnderTheirParents) {
    const SampleTree sample;
    EXPECT_EQ(sample.tree.NodeCount(), 4);
    EXPECT_EQ(sample.tree.node(u"1:1"_s)->parent(), sample.tree.node(u"X1"_s));
    EXPECT_EQ(sample.tree.node(u"X1"_s)->parent(), sample.tree.node(u"Root1"_s));
    EXPECT_EQ(sample.tree.node(u"Root2"_s)->parent(), nullptr);
    EXPECT_EQ(sample.tree.node(u"X1"_s)->text(0), u"Genesis"_s);
    EXPECT_EQ(sample.tree.node(u"nothing"_s), nullptr);
}

TEST(TreeView, aClickTellsTheKeyOfTheSameNodeToo) {
    SampleTree sample;
    sample.click(u"1:1"_s);
    sample.click(u"1:1"_s);
    EXPECT_EQ(sample.clicked, (QStringList{u"1:1"_s, u"1:1"_s}));
}

TEST(TreeView, keysThatMoveAndEnterTellTheKey) {
    SampleTree sample;
    sample.click(u"X1"_s);
    QTest::keyClick(&sample.tree, Qt::Key_Down);
    QTest::keyClick(&sample.tree, Qt::Key_Return);
    QTest::keyClick(&sample.tree, Qt::Key_Shift);
    EXPECT_EQ(sample.clicked, (QStringList{u"X1"_s, u"1:1"_s, u"1:1"_s}));
}

TEST(TreeView, newNodesTakeThePlaceOfTheOld) {
    SampleTree sample;
    sample.tree.setNodes({{u"A"_s, u"a"_s, {}, {}, {}}});
    EXPECT_EQ(sample.tree.NodeCount(), 1);
    EXPECT_EQ(sample.tree.topLevelItemCount(), 1);
    EXPECT_EQ(sample.tree.node(u"X1"_s), nullptr);
}
