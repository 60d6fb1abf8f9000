#include "controls/OptionButton.h"

#include "controls/Frame.h"

#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Choice {
    Frame frame{nullptr, {u"fraChoice", u"Choose one"}};
    OptionButton first{&frame, {u"optFirst", u"&First", u"The first one"}};
    OptionButton second{&frame, {u"optSecond", u"&Second"}};
    QStringList clicks;

    Choice() {
        for (OptionButton* button : {&first, &second})
            button->Click.handleWith([this, button] { clicks.append(button->objectName()); });
    }
};

} // namespace

TEST(OptionButton, raisesClickWhenCodeSelectsItAndNotWhenItIsSelected) {
    Choice choice;
    choice.first.setValue(true);
    choice.first.setValue(true);
    EXPECT_EQ(choice.clicks, QStringList{u"optFirst"_s});
}

TEST(OptionButton, takesTheSelectionFromTheOthersInSilence) {
    Choice choice;
    choice.first.setValue(true);
    choice.second.setValue(true);
    EXPECT_FALSE(choice.first.Value());
    EXPECT_TRUE(choice.second.Value());
    EXPECT_EQ(choice.clicks, (QStringList{u"optFirst"_s, u"optSecond"_s}));
}

TEST(OptionButton, isSelectedByMouseAndArrowKeys) {
    Choice choice;
    choice.second.move(0, 40);
    choice.frame.show();
    choice.frame.activateWindow();
    QCoreApplication::processEvents();
    QTest::mouseClick(&choice.first, Qt::LeftButton, {}, {5, choice.first.height() / 2});
    QTest::keyClick(&choice.first, Qt::Key_Down);
    EXPECT_TRUE(choice.second.Value());
    EXPECT_EQ(choice.clicks, (QStringList{u"optFirst"_s, u"optSecond"_s}));
}

TEST(OptionButton, aNewCaptionIsAlsoItsNameForAScreenReader) {
    Choice choice;
    EXPECT_EQ(choice.first.accessibleName(), u"First"_s);
    choice.first.setCaption(u"&Other"_s);
    EXPECT_EQ(choice.first.Caption(), u"&Other"_s);
    EXPECT_EQ(choice.first.accessibleName(), u"Other"_s);
    EXPECT_EQ(choice.first.objectName(), u"optFirst"_s);
    EXPECT_EQ(choice.first.ToolTipText(), u"The first one"_s);
}

TEST(Frame, isKnownByItsHeading) {
    const Choice choice;
    EXPECT_EQ(choice.frame.Caption(), u"Choose one"_s);
    EXPECT_EQ(choice.frame.accessibleName(), u"Choose one"_s);
}
