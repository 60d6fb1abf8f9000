#include "basic/Error.h"
#include "richtext/RichTextPage.h"

#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Box : RichTextPage {
    explicit Box(const QString& text) { setText(text); }

    QTextCharFormat formatAt(int place) const {
        QTextCursor cursor(document());
        cursor.setPosition(place + 1);
        return cursor.charFormat();
    }
};

template <class Action>
int errorNumberOf(Action&& action) {
    try {
        action();
    } catch (const Error& error) {
        EXPECT_FALSE(error.text().isEmpty());
        return error.number();
    }
    return 0;
}

} // namespace

TEST(Selection, settingTheStartLeavesNothingSelected) {
    Box box(u"one two"_s);
    box.setSelStart(4);
    box.setSelLength(3);
    EXPECT_EQ(box.SelText(), u"two"_s);
    box.setSelStart(1);
    EXPECT_EQ(box.SelStart(), 1);
    EXPECT_EQ(box.SelLength(), 0);
    EXPECT_EQ(box.SelText(), QString());
}

TEST(Selection, lengthZeroCollapsesToTheStart) {
    Box box(u"one two"_s);
    box.setSelStart(1);
    box.setSelLength(1);
    box.setSelLength(0);
    EXPECT_EQ(box.SelStart(), 1);
    EXPECT_EQ(box.SelLength(), 0);
}

TEST(Selection, placesBehindTheTextAreCutToIt) {
    Box box(u"one"_s);
    box.setSelStart(99);
    EXPECT_EQ(box.SelStart(), 3);
    box.setSelLength(5);
    EXPECT_EQ(box.SelLength(), 0);
    box.setSelStart(1);
    box.setSelLength(2'000'000'000);
    EXPECT_EQ(box.SelText(), u"ne"_s);
}

TEST(Selection, negativeValuesAreErrorsAndChangeNothing) {
    Box box(u"one two"_s);
    box.setSelStart(4);
    box.setSelLength(2);
    EXPECT_EQ(errorNumberOf([&] { box.setSelStart(-1); }), Error::InvalidPropertyValue);
    EXPECT_EQ(errorNumberOf([&] { box.setSelLength(-1); }), Error::InvalidPropertyValue);
    EXPECT_EQ(errorNumberOf([&] { box.setSelHangingIndent(-1); }), Error::InvalidPropertyValue);
    EXPECT_EQ(errorNumberOf([&] { box.setHangingIndent(-1); }), Error::InvalidPropertyValue);
    EXPECT_EQ(errorNumberOf([&] { box.setFontSize(0); }), Error::InvalidPropertyValue);
    EXPECT_EQ(box.SelText(), u"tw"_s);
}

TEST(Selection, aSelectionMadeBackwardsStartsAtItsLowerEnd) {
    Box box(u"one two"_s);
    QTextCursor cursor = box.textCursor();
    cursor.setPosition(5);
    cursor.setPosition(2, QTextCursor::KeepAnchor);
    box.setTextCursor(cursor);
    EXPECT_EQ(box.SelStart(), 2);
    EXPECT_EQ(box.SelLength(), 3);
}

TEST(Selection, formatsGoToWhatIsSelectedAlone) {
    Box box(u"one two three"_s);
    box.setSelStart(4);
    box.setSelLength(3);
    box.setSelColor(QColor(255, 0, 0));
    box.setSelBold(true);
    box.setSelItalic(true);
    box.setSelUnderline(true);
    EXPECT_EQ(box.formatAt(4).foreground().color(), QColor(255, 0, 0));
    EXPECT_TRUE(box.formatAt(6).font().bold());
    EXPECT_TRUE(box.formatAt(6).font().italic());
    EXPECT_TRUE(box.formatAt(6).font().underline());
    EXPECT_FALSE(box.formatAt(3).font().bold());
    EXPECT_FALSE(box.formatAt(7).hasProperty(QTextFormat::ForegroundBrush));
    EXPECT_EQ(box.Text(), u"one two three"_s);
}

TEST(Selection, formatsAreReadFromTheFirstSelectedCharacter) {
    Box box(u"one two"_s);
    box.setSelStart(4);
    box.setSelLength(3);
    box.setSelColor(QColor(0, 0, 255));
    box.setSelBold(true);
    box.setSelStart(4);
    box.setSelLength(1);
    EXPECT_EQ(box.SelColor(), QColor(0, 0, 255));
    EXPECT_TRUE(box.SelBold());
    EXPECT_FALSE(box.SelItalic());
    box.setSelStart(3);
    box.setSelLength(4);
    EXPECT_FALSE(box.SelBold());
    EXPECT_EQ(box.SelColor(), box.palette().color(QPalette::Text));
}

TEST(Selection, emphasisCanBeTakenBack) {
    Box box(u"one"_s);
    box.setSelLength(3);
    box.setSelBold(true);
    box.setSelBold(false);
    EXPECT_FALSE(box.SelBold());
    EXPECT_FALSE(box.formatAt(0).font().bold());
}

TEST(Selection, withNothingSelectedTheTextKeepsItsFormat) {
    for (const bool shown : {false, true}) {
        Box box(u"one two"_s);
        box.setVisible(shown);
        box.setSelStart(3);
        box.setSelColor(QColor(255, 0, 0));
        box.setSelBold(true);
        box.setSelUnderline(true);
        EXPECT_TRUE(box.SelBold());
        EXPECT_EQ(box.SelColor(), QColor(255, 0, 0));
        box.setSelStart(0);
        box.setSelLength(7);
        EXPECT_FALSE(box.SelBold());
        for (int place = 0; place < 7; ++place)
            EXPECT_FALSE(box.formatAt(place).hasProperty(QTextFormat::ForegroundBrush));
    }
}

TEST(Selection, theTypingFormatIsTypedWith) {
    Box box(u"one"_s);
    box.setSelStart(3);
    box.setSelBold(true);
    box.show();
    QTest::keyClick(&box, Qt::Key_X);
    EXPECT_EQ(box.Text(), u"onex"_s);
    EXPECT_TRUE(box.formatAt(3).font().bold());
    EXPECT_FALSE(box.formatAt(2).font().bold());
}

TEST(Selection, hangingIndentOfTheSelectedParagraphs) {
    Box box(u"one\ntwo\nthree"_s);
    box.setSelStart(4);
    box.setSelHangingIndent(500);
    EXPECT_EQ(box.SelHangingIndent(), 500);
    const QTextBlockFormat format = box.document()->findBlockByNumber(1).blockFormat();
    EXPECT_NEAR(format.leftMargin(), 500 / 15.0, 0.001);
    EXPECT_NEAR(format.textIndent(), -500 / 15.0, 0.001);
    EXPECT_EQ(format.lineHeight(), 120);
    box.setSelStart(0);
    EXPECT_EQ(box.SelHangingIndent(), 0);
}

TEST(Selection, hangingIndentOfTheWholeTextHoldsForTheNextOnesToo) {
    Box box(u"one\ntwo"_s);
    box.setHangingIndent(500);
    EXPECT_EQ(box.HangingIndent(), 500);
    EXPECT_EQ(box.SelHangingIndent(), 500);
    box.setText(u"three\r\nfour"_s);
    box.setSelStart(7);
    EXPECT_EQ(box.SelHangingIndent(), 500);
    box.setHangingIndent(0);
    EXPECT_EQ(box.SelHangingIndent(), 0);
    EXPECT_EQ(box.document()->lastBlock().blockFormat().leftMargin(), 0);
}

TEST(Selection, changeIsRaisedOnceForEachNewTextAndNeverForFormats) {
    RichTextPage box;
    QSignalSpy changes(&box, &RichTextPage::changed);
    box.setText(u"one two"_s);
    EXPECT_EQ(changes.count(), 1);
    box.setText(u"one two"_s);
    EXPECT_EQ(changes.count(), 2);
    box.setTextRTF(u"{\\rtf1{\\b one} two}"_s);
    EXPECT_EQ(changes.count(), 3);
    box.Find(u"two"_s);
    box.setSelColor(QColor(0, 0, 255));
    box.setHangingIndent(100);
    box.setFontSize(20);
    QCoreApplication::processEvents();
    EXPECT_EQ(changes.count(), 3);
    box.textCursor().insertText(u"x"_s);
    EXPECT_EQ(changes.count(), 4);
}
