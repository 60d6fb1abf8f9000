#include "controls/Form.h"
#include "controls/TextBox.h"

#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class KeyForm final : public Form {
public:
    KeyForm()
        : Form(u"frmKeys"_s) {
        text.SetFocus();
    }

    TextBox text{this, {u"txtKeys"}};
    QList<int> seen;
    int dropped = 0;

protected:
    void Form_KeyDown(int& keyCode, int shift) override {
        seen.append(keyCode + 1000 * shift);
        if (keyCode == dropped)
            keyCode = 0;
    }
};

} // namespace

TEST(Keys, withKeyPreviewTheFormSeesThemFirst) {
    KeyForm form;
    form.setKeyPreview(true);
    form.Show();
    QTest::keyClick(&form.text, Qt::Key_A);
    QTest::keyClick(&form.text, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(form.seen, (QList<int>{65, 2017, 2034}));
    EXPECT_EQ(form.text.Text(), u"a"_s);
}

TEST(Keys, tabMovesTheFocusAndTheFormSeesNothing) {
    KeyForm form;
    TextBox next(&form, {u"txtNext"});
    form.setKeyPreview(true);
    form.Show();
    QTest::keyClick(&form.text, Qt::Key_Tab);
    EXPECT_EQ(form.focusWidget(), &next);
    QTest::keyClick(&next, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(form.focusWidget(), &form.text);
    EXPECT_EQ(form.seen, QList<int>{1016}); // Shift on its way to the second Tab
}

TEST(Keys, withoutKeyPreviewTheFormSeesNone) {
    KeyForm form;
    form.Show();
    QTest::keyClick(&form.text, Qt::Key_A);
    EXPECT_TRUE(form.seen.isEmpty());
}

TEST(Keys, aKeyThatTheFormDropsDoesNotReachTheControl) {
    KeyForm form;
    form.setKeyPreview(true);
    form.dropped = 'A';
    form.Show();
    int ups = 0;
    form.text.KeyUp.handleWith([&](int, int) { ++ups; });
    QTest::keyClick(&form.text, Qt::Key_A);
    EXPECT_EQ(form.text.Text(), QString());
    EXPECT_EQ(ups, 0);
}

TEST(Keys, aKeyThatNobodyWantsIsPreviewedOnce) {
    KeyForm form;
    form.setKeyPreview(true);
    form.Show();
    QTest::keyClick(&form.text, Qt::Key_F9);
    EXPECT_EQ(form.seen.size(), 1);
}

TEST(Keys, keyPressMayAlterOrDropTheCharacter) {
    TextBox box(nullptr, {u"txt"});
    box.show();
    box.KeyPress.handleWith([](int& character) {
        if (character == 'x')
            character = 0;
        else if (character == 'y')
            character = 'Y';
    });
    QTest::keyClicks(&box, u"axyb"_s);
    EXPECT_EQ(box.Text(), u"aYb"_s);
}

TEST(Keys, keyUpComesAfterTheTextHasChanged) {
    MultilineTextBox box(nullptr, {u"txt"});
    box.show();
    QStringList texts;
    box.KeyUp.handleWith([&](int, int) { texts.append(box.Text()); });
    QTest::keyClicks(&box, u"ab"_s);
    EXPECT_EQ(texts, (QStringList{u"a"_s, u"ab"_s}));
}

TEST(Keys, keyUpIsSilentForAKeyThatWasPressedElsewhere) {
    TextBox box(nullptr, {u"txt"});
    box.show();
    int ups = 0;
    box.KeyUp.handleWith([&](int, int) { ++ups; });
    QTest::keyRelease(&box, Qt::Key_Return);
    EXPECT_EQ(ups, 0);
}

TEST(Keys, textFromAnInputMethodCountsAsAKey) {
    TextBox box(nullptr, {u"txt"});
    box.show();
    QStringList texts;
    box.KeyUp.handleWith([&](int, int) { texts.append(box.Text()); });
    QInputMethodEvent event;
    event.setCommitString(u"漢"_s);
    QCoreApplication::sendEvent(&box, &event);
    EXPECT_EQ(texts, QStringList{u"漢"_s});
}
