#include "controls/CheckBox.h"

#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct CountingBox {
    CheckBox box{nullptr, {u"chkWhole", u"Match &Whole"}};
    int clicks = 0;

    CountingBox() {
        box.Click.handleWith([this] { ++clicks; });
    }
};

} // namespace

TEST(CheckBox, raisesClickWhenItChangesByHandAndByCode) {
    CountingBox counting;
    counting.box.setValue(true);
    EXPECT_EQ(counting.clicks, 1);
    counting.box.setValue(true);
    EXPECT_EQ(counting.clicks, 1);
    counting.box.show();
    QTest::keyClick(&counting.box, Qt::Key_Space);
    EXPECT_EQ(counting.clicks, 2);
    EXPECT_FALSE(counting.box.Value());
}

TEST(CheckBox, isKnownByItsCaption) {
    const CountingBox counting;
    EXPECT_EQ(counting.box.accessibleName(), u"Match Whole"_s);
    EXPECT_EQ(counting.box.objectName(), u"chkWhole"_s);
}
