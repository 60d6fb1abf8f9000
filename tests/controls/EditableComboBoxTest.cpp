#include "controls/EditableComboBox.h"

#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Addresses {
    EditableComboBox list{nullptr, {u"cboAddress", u"Send to"}};
    int clicks = 0;

    Addresses() {
        list.Click.handleWith([this] { ++clicks; });
        list.AddItems({u"anna"_s, u"bert"_s});
    }
};

} // namespace

TEST(EditableComboBox, addedItemsLeaveTheTypedTextAlone) {
    Addresses addresses;
    EXPECT_EQ(addresses.list.Text(), QString());
    addresses.list.setText(u"carl"_s);
    addresses.list.AddItem(u"dora"_s);
    EXPECT_EQ(addresses.list.Text(), u"carl"_s);
    EXPECT_EQ(addresses.list.ListCount(), 3);
}

TEST(EditableComboBox, aSelectedRowIsItsText) {
    Addresses addresses;
    addresses.list.setListIndex(1);
    EXPECT_EQ(addresses.list.Text(), u"bert"_s);
    EXPECT_EQ(addresses.clicks, 1);
}

TEST(EditableComboBox, whatIsTypedIsNeitherCompletedNorAdded) {
    Addresses addresses;
    addresses.list.show();
    QTest::keyClicks(addresses.list.lineEdit(), u"an"_s);
    EXPECT_EQ(addresses.list.Text(), u"an"_s);
    QTest::keyClick(addresses.list.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(addresses.list.Text(), u"an"_s);
    EXPECT_EQ(addresses.list.ListCount(), 2);
    EXPECT_EQ(addresses.clicks, 0);
}

TEST(EditableComboBox, clearTakesTheTextToo) {
    Addresses addresses;
    addresses.list.setText(u"carl"_s);
    addresses.list.Clear();
    EXPECT_EQ(addresses.list.Text(), QString());
    EXPECT_EQ(addresses.list.ListCount(), 0);
}
