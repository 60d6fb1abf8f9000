#include "controls/TextBox.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(TextBox, aNewTextRaisesChangeAndTheSameTextNothing) {
    TextBox box(nullptr, {u"txt"});
    int changes = 0;
    box.Change.handleWith([&] { ++changes; });
    box.setText(u"grace"_s);
    box.setText(u"grace"_s);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(box.Text(), u"grace"_s);
}

TEST(MultilineTextBox, keepsLinesAndRaisesChange) {
    MultilineTextBox box(nullptr, {u"txt"});
    int changes = 0;
    box.Change.handleWith([&] { ++changes; });
    box.setText(u"one\ntwo "_s);
    box.setText(u"one\ntwo "_s);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(box.Text(), u"one\ntwo "_s);
}

TEST(MultilineTextBox, takesItsColours) {
    MultilineTextBox box(nullptr, {u"txt"});
    box.setForeColor(QColor(1, 2, 3));
    box.setBackColor(QColor(4, 5, 6));
    EXPECT_EQ(box.palette().color(QPalette::Text), QColor(1, 2, 3));
    EXPECT_EQ(box.palette().color(QPalette::Base), QColor(4, 5, 6));
}
