// Marks made while the box is hidden, as the program makes them.
#include "richtext/RichTextPage.h"
#include "richtext/samplePages.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

int markAll(RichTextPage& box, const QString& word) {
    const int end = int(box.Text().size());
    int start = 1;
    int hits = 0;
    for (;;) {
        const int place = box.Find(word, start, end, 0);
        if (place < 0)
            return hits;
        box.setSelColor(QColor(0, 0, 255));
        box.setSelBold(true);
        box.setSelUnderline(true);
        start = place + int(word.size());
        box.setSelLength(0);
        ++hits;
    }
}

bool isMarked(const RichTextPage& box, int place) {
    QTextCursor cursor(box.document());
    cursor.setPosition(place + 1);
    const QTextCharFormat format = cursor.charFormat();
    return format.font().bold() && format.font().underline()
           && format.foreground().color() == QColor(0, 0, 255);
}

// How the page looks, as pixels.
QImage picture(RichTextPage& box) {
    return box.grab().toImage();
}

} // namespace

TEST(Marking, everyHitIsMarkedAndNothingElse) {
    RichTextPage box;
    box.setText(u"the one, The two; other"_s);
    EXPECT_EQ(markAll(box, u"the"_s), 2);
    EXPECT_TRUE(isMarked(box, 9));
    EXPECT_TRUE(isMarked(box, 20));
    EXPECT_FALSE(isMarked(box, 0));
    EXPECT_FALSE(isMarked(box, 12));
}

TEST(Marking, hiddenAndShownPagesLookTheSame) {
    RichTextPage hidden;
    RichTextPage shown;
    for (RichTextPage* box : {&hidden, &shown}) {
        box->resize(500, 400);
        box->setTextRTF(psalmPage(longestPsalm().first(10)));
        box->show();
    }
    hidden.hide();
    EXPECT_EQ(markAll(hidden, u"the"_s), markAll(shown, u"the"_s));
    hidden.show();
    for (RichTextPage* box : {&hidden, &shown}) {
        box->setSelStart(1);
        box->setSelLength(1);
        box->setSelLength(0);
    }
    EXPECT_EQ(picture(hidden), picture(shown));
    EXPECT_EQ(hidden.TextRTF(), shown.TextRTF());
}

TEST(Marking, theSelectionOfAHiddenBoxIsThereWhenItShows) {
    RichTextPage box;
    box.setText(u"one two"_s);
    box.Find(u"two"_s);
    EXPECT_EQ(box.SelText(), u"two"_s);
    box.show();
    EXPECT_EQ(box.textCursor().selectedText(), u"two"_s);
    EXPECT_EQ(box.SelText(), u"two"_s);
}

TEST(Marking, aBoxThatStaysHiddenIsCompleteAfterTheNextEvent) {
    RichTextPage box;
    box.setText(u"one two"_s);
    box.Find(u"two"_s);
    box.setSelBold(true);
    QCoreApplication::processEvents();
    EXPECT_EQ(box.textCursor().selectedText(), u"two"_s);
    EXPECT_TRUE(box.SelBold());
}

TEST(Marking, aTextSetWhileHiddenForgetsTheMarks) {
    RichTextPage box;
    box.setText(u"one two"_s);
    box.Find(u"two"_s);
    box.setSelBold(true);
    box.setText(u"one two"_s);
    EXPECT_EQ(box.SelLength(), 0);
    box.setSelLength(7);
    EXPECT_FALSE(box.SelBold());
    EXPECT_FALSE(isMarked(box, 4));
}

TEST(Marking, aBoxMayGoWithMarksNotYetShown) {
    auto box = std::make_unique<RichTextPage>();
    box->setText(u"one two"_s);
    box->Find(u"two"_s);
    box->setSelBold(true);
    box.reset();
    QCoreApplication::processEvents();
}
