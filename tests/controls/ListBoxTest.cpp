#include "controls/ListBox.h"

#include "basic/Error.h"

#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ListBoxTest : public testing::Test {
protected:
    ListBoxTest() {
        for (const QString& line : {u"one"_s, u"two"_s, u"three"_s})
            list.AddItem(line);
        list.Click.handleWith([this] { clicks.append(list.ListIndex()); });
        list.DblClick.handleWith([this] { ++doubleClicks; });
        list.show();
    }

    QPoint placeOf(int row) const { return list.visualItemRect(list.item(row)).center(); }
    void press(int row) { QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, placeOf(row)); }

    ListBox list{nullptr, {u"lstSample", {}, u"Some lines"}};
    QList<int> clicks;
    int doubleClicks = 0;
};

} // namespace

TEST_F(ListBoxTest, startsWithoutASelectionAndFocusMakesNone) {
    list.activateWindow();
    list.SetFocus();
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.Text(), QString());
    EXPECT_EQ(list.ListCount(), 3);
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(ListBoxTest, codeRaisesClickWhenItChangesTheSelection) {
    list.setListIndex(1);
    list.setListIndex(1);
    list.setListIndex(-1);
    EXPECT_EQ(clicks, (QList<int>{1, -1}));
}

TEST_F(ListBoxTest, anIndexOutOfRangeIsAnErrorAndChangesNothing) {
    list.setListIndex(2);
    EXPECT_THROW(list.setListIndex(3), Error);
    EXPECT_THROW(list.setListIndex(-2), Error);
    EXPECT_THROW(list.List(3), Error);
    EXPECT_THROW(list.List(-1), Error);
    EXPECT_EQ(list.Text(), u"three"_s);
    EXPECT_EQ(list.List(0), u"one"_s);
}

TEST_F(ListBoxTest, clearRaisesNothing) {
    list.setListIndex(0);
    clicks.clear();
    list.Clear();
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(ListBoxTest, everyPickOfTheUserRaisesOneClick) {
    press(1);
    press(1);
    press(0);
    EXPECT_EQ(clicks, (QList<int>{1, 1, 0}));
}

TEST_F(ListBoxTest, keysThatMoveTheSelectionRaiseClick) {
    press(0);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_End);
    QTest::keyClick(&list, Qt::Key_End);
    EXPECT_EQ(clicks, (QList<int>{0, 1, 2}));
}

TEST_F(ListBoxTest, aDoubleClickRaisesOneClickBeforeIt) {
    press(2);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, placeOf(2));
    EXPECT_EQ(clicks, QList<int>{2});
    EXPECT_EQ(doubleClicks, 1);
}

TEST_F(ListBoxTest, aDragToAnotherRowIsAPick) {
    QTest::mousePress(list.viewport(), Qt::LeftButton, {}, placeOf(0));
    QTest::mouseMove(list.viewport(), placeOf(2));
    QMouseEvent drag(
        QEvent::MouseMove, placeOf(2), list.viewport()->mapToGlobal(placeOf(2)), Qt::NoButton,
        Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(list.viewport(), &drag);
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, placeOf(2));
    EXPECT_EQ(clicks, QList<int>{list.ListIndex()});
}

TEST_F(ListBoxTest, aClickBesideTheRowsIsNone) {
    QTest::mouseClick(
        list.viewport(), Qt::LeftButton, {}, QPoint(5, list.viewport()->height() - 3));
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(ListBoxTest, theOtherButtonsPickNothing) {
    press(0);
    clicks.clear();
    QTest::mouseClick(list.viewport(), Qt::RightButton, {}, placeOf(1));
    QTest::mouseDClick(list.viewport(), Qt::RightButton, {}, placeOf(1));
    EXPECT_TRUE(clicks.isEmpty());
    EXPECT_EQ(list.ListIndex(), 0);
}

TEST_F(ListBoxTest, withoutASelectionDownPicksTheFirstRow) {
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.ListIndex(), 0);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.ListIndex(), 1);
}
