#include "controls/ToolBar.h"

#include "basic/Error.h"

#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Strip {
    ToolBar bar{
        nullptr,
        {u"Toolbar"},
        {{u"Print"_s, u"&Print"_s, u"Print it"_s, {}}, {u"Exit"_s, u"E&xit"_s, u"Close it"_s, {}}}};
    QStringList keys;

    Strip() {
        bar.ButtonClick.handleWith([this](const QString& key) { keys.append(key); });
        bar.show();
    }
};

} // namespace

TEST(ToolBar, tellsTheKeyOfThePressedButton) {
    Strip strip;
    QTest::mouseClick(&strip.bar.Buttons(u"Exit"_s), Qt::LeftButton);
    QTest::keyClick(&strip.bar.Buttons(u"Print"_s), Qt::Key_Return);
    strip.bar.Buttons(u"Exit"_s).setValue(true);
    EXPECT_EQ(strip.keys, (QStringList{u"Exit"_s, u"Print"_s, u"Exit"_s}));
}

TEST(ToolBar, standsInTheOrderOfItsTable) {
    Strip strip;
    EXPECT_LT(strip.bar.Buttons(u"Print"_s).x(), strip.bar.Buttons(u"Exit"_s).x());
}

TEST(ToolBar, aKeyThatItLacksIsAnError) {
    const Strip strip;
    EXPECT_THROW(strip.bar.Buttons(u"exit"_s), Error);
}

TEST(ToolBar, itsButtonsAreKnownByNameCaptionAndToolTip) {
    const Strip strip;
    const PictureButton& button = strip.bar.Buttons(u"Exit"_s);
    EXPECT_EQ(button.objectName(), u"Toolbar(Exit)"_s);
    EXPECT_EQ(button.accessibleName(), u"Exit"_s);
    EXPECT_EQ(button.ToolTipText(), u"Close it"_s);
}
