#include "controls/CommandButton.h"

#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct CountingButton {
    CommandButton button{nullptr, {u"cmdGo", u"&Go && come", u"Go there"}};
    int clicks = 0;

    CountingButton() {
        button.Click.handleWith([this] { ++clicks; });
    }
};

} // namespace

TEST(CommandButton, settingItsValueToPressedRunsClick) {
    CountingButton counting;
    counting.button.setValue(true);
    EXPECT_EQ(counting.clicks, 1);
    counting.button.setValue(false);
    EXPECT_EQ(counting.clicks, 1);
}

TEST(CommandButton, isPressedByMouseSpaceAndEnter) {
    CountingButton counting;
    counting.button.show();
    QTest::mouseClick(&counting.button, Qt::LeftButton);
    QTest::keyClick(&counting.button, Qt::Key_Space);
    QTest::keyClick(&counting.button, Qt::Key_Return);
    QTest::keyClick(&counting.button, Qt::Key_Enter);
    EXPECT_EQ(counting.clicks, 4);
}

TEST(CommandButton, isNoDefaultByItself) {
    const CountingButton counting;
    EXPECT_FALSE(counting.button.autoDefault());
    EXPECT_FALSE(counting.button.isDefault());
}

TEST(CommandButton, isKnownByItsCaptionWithoutMarks) {
    const CountingButton counting;
    EXPECT_EQ(counting.button.accessibleName(), u"Go & come"_s);
    EXPECT_EQ(counting.button.Caption(), u"&Go && come"_s);
}
