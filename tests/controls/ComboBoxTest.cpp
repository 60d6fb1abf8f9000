#include "controls/ComboBox.h"

#include "basic/Error.h"

#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct CountingList {
    ComboBox list{nullptr, {u"cboList", {}, u"Change List"}};
    int clicks = 0;

    explicit CountingList(const QStringList& items = {u"a"_s, u"b"_s, u"c"_s}) {
        list.AddItems(items);
        list.Click.handleWith([this] { ++clicks; });
    }
};

} // namespace

TEST(ComboBox, addedItemsAreNotSelected) {
    CountingList counting;
    EXPECT_EQ(counting.list.ListIndex(), -1);
    EXPECT_EQ(counting.list.ListCount(), 3);
    counting.list.setListIndex(1);
    counting.list.AddItem(u"d"_s);
    EXPECT_EQ(counting.list.ListIndex(), 1);
    EXPECT_EQ(counting.list.List(3), u"d"_s);
}

TEST(ComboBox, codeThatChangesTheSelectionRaisesClick) {
    CountingList counting;
    counting.list.setListIndex(2);
    EXPECT_EQ(counting.clicks, 1);
    EXPECT_EQ(counting.list.Text(), u"c"_s);
}

TEST(ComboBox, codeThatSetsTheSelectedRowRaisesNothing) {
    CountingList counting;
    counting.list.setListIndex(2);
    counting.list.setListIndex(2);
    EXPECT_EQ(counting.clicks, 1);
}

TEST(ComboBox, aHandlerMaySetItsOwnList) {
    CountingList counting;
    int clicks = 0;
    counting.list.Click.handleWith([&] {
        ++clicks;
        counting.list.setListIndex(0);
    });
    counting.list.setListIndex(2);
    EXPECT_EQ(counting.list.ListIndex(), 0);
    EXPECT_EQ(clicks, 2);
}

TEST(ComboBox, anIndexOutOfRangeIsAnErrorAndChangesNothing) {
    CountingList counting;
    counting.list.setListIndex(1);
    EXPECT_THROW(counting.list.setListIndex(3), Error);
    EXPECT_THROW(counting.list.setListIndex(-2), Error);
    EXPECT_THROW(counting.list.List(3), Error);
    EXPECT_EQ(counting.list.ListIndex(), 1);
    EXPECT_EQ(counting.clicks, 1);
}

TEST(ComboBox, clearTakesTheSelectionAndRaisesNothing) {
    CountingList counting;
    counting.list.setListIndex(1);
    counting.list.Clear();
    EXPECT_EQ(counting.list.ListIndex(), -1);
    EXPECT_EQ(counting.list.ListCount(), 0);
    EXPECT_EQ(counting.list.Text(), QString());
    EXPECT_EQ(counting.clicks, 1);
}

TEST(ComboBox, everyPickOfTheUserRaisesClick) {
    CountingList counting;
    counting.list.show();
    QTest::keyClick(&counting.list, Qt::Key_Down);
    EXPECT_EQ(counting.list.ListIndex(), 0);
    EXPECT_EQ(counting.clicks, 1);
    Q_EMIT counting.list.activated(0); // the same row again, as from the open list
    EXPECT_EQ(counting.clicks, 2);
}

TEST(ComboBox, isKnownByItsNameAndItsToolTip) {
    const CountingList counting;
    EXPECT_EQ(counting.list.objectName(), u"cboList"_s);
    EXPECT_EQ(counting.list.accessibleName(), u"Change List"_s);
    EXPECT_EQ(counting.list.ToolTipText(), u"Change List"_s);
}
