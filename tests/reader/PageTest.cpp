#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "reader/PageComposer.h"
#include "reader/frmMain.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

class Page : public ProgramFixture {
protected:
    void SetUp() override { openTranslation(sampleVerses()); }

    static frmMain& window() { return form<frmMain>(); }

    static void show(int book, int chapter, int verse) {
        rsBible.Seek(u"="_s, book, chapter, verse);
        window().UpDateBibleText(true);
    }

    // The page with an "x" for each letter that is marked as a word of the query.
    static std::string marks() {
        RichTextBox& page = window().txtMain;
        QString text = page.Text();
        for (qsizetype place = 0; place < text.size(); ++place) {
            if (text[place] == u'\n')
                continue;
            page.setSelStart(static_cast<int>(place));
            page.setSelLength(1);
            const bool blue = page.SelColor() == QColor(0, 0, 255);
            if (blue && page.SelBold() && page.SelUnderline())
                text[place] = u'x';
        }
        return text.toStdString();
    }

    static void setNote(const QVariant& note) {
        rsBible.Edit();
        rsBible.Fields(5) = note;
        rsBible.Update();
    }
};

} // namespace

TEST_F(Page, isHeldWhileStartingUpAndWhileUpdatesAreHeld) {
    for (Flag* flag : {&StartingUp, &HoldUpdates}) {
        *flag = On;
        window().setCaption(u"before"_s);
        show(40, 1, 1);
        EXPECT_EQ(window().Caption(), u"before"_s);
        EXPECT_EQ(position(), u"40:1:1"_s);
        *flag = Off;
    }
}

TEST_F(Page, isTitledWithTheVerseItWasAskedFor) {
    show(40, 2, 3);
    EXPECT_EQ(window().Caption(), u"Lumenvia Professional King James [Matthew 2:3] "_s);
    EXPECT_EQ(window().lblCurrentNote.Caption(), u"Your note for: Matthew 2:3"_s);
}

TEST_F(Page, leavesTheNotesHeadingWhileNotesAreHidden) {
    HideNotes = On;
    show(40, 2, 3);
    EXPECT_EQ(window().lblCurrentNote.Caption(), u"Note for "_s);
}

TEST_F(Page, takesTheFontSizeOfTheTextForItsWindow) {
    MainFontSize = 17;
    show(40, 1, 1);
    EXPECT_EQ(window().FontSize(), 17);
}

TEST_F(Page, showsEachVerseOnALineOfItsOwn) {
    show(40, 1, 24);
    EXPECT_EQ(
        window().txtMain.Text(), u"Matthew 1:24 Verse 40:1:24. \nMatthew 1:25 Verse 40:1:25. "_s);
}

TEST_F(Page, rewindsTheCursorFromItsEnd) {
    VersesPerPage = 40;
    show(19, 119, 1);
    EXPECT_EQ(position(), u"19:119:136"_s);
    show(1, 1, 1);
    EXPECT_EQ(position(), u"1:1:1"_s);
}

TEST_F(Page, ofVersesPerPageAndOneVersesEndsOnItsTopRow) {
    VersesPerPage = 22;
    show(40, 2, 1);
    EXPECT_EQ(position(), u"40:2:1"_s);
}

TEST_F(Page, neverLeavesTheCursorBeforeTheFirstRow) {
    for (const int count : {30, 31, 32, 200}) {
        VersesPerPage = static_cast<qint16>(count);
        show(1, 1, 1);
        EXPECT_EQ(position(), u"1:1:1"_s) << count;
    }
}

TEST_F(Page, isFollowedByTheRowThatPagingReaches) {
    VersesPerPage = 10;
    show(40, 1, 1);
    for (int step = 0; step <= VersesPerPage; ++step)
        rsBible.MoveNext();
    EXPECT_EQ(position(), u"40:2:1"_s);
}

TEST_F(Page, pastTheEndIsEmptyAndTitledWithTheLastVerse) {
    rsBible.MoveLast();
    rsBible.MoveNext();
    for (int time = 0; time < 2; ++time) {
        window().UpDateBibleText(true);
        EXPECT_EQ(window().Caption(), u"Lumenvia Professional King James [Revelation 22:21] "_s);
        EXPECT_EQ(window().txtMain.Text(), QString());
        for (int step = 0; step <= VersesPerPage && !rsBible.Eof(); ++step)
            rsBible.MoveNext();
        EXPECT_TRUE(rsBible.Eof());
    }
}

TEST_F(Page, behindAFailedSeekIsThatOfTheFirstVerse) {
    VersesPerPage = 10;
    show(50, 1, 1);
    EXPECT_EQ(window().Caption(), u"Lumenvia Professional King James [Genesis 1:1] "_s);
    EXPECT_TRUE(window().txtMain.Text().startsWith(u"Genesis 1:1 "_s));
    EXPECT_EQ(position(), u"1:1:21"_s);
}

TEST_F(Page, inAQueryGoesBackByTheVersesItWrote) {
    rsBible = dbBible.OpenRecordset(
        u"SELECT * FROM tblMain WHERE (((body like \"*Verse 40:*\")) )"_s, dbOpenDynaset);
    InQuery = On;
    window().UpDateBibleText(true);
    InQuery = Off;
    EXPECT_EQ(window().txtMain.Text().count(u"Verse"_s), 25);
    EXPECT_EQ(position(), u"40:1:2"_s);
}

TEST_F(Page, inAQueryTheLastRunOfMatchesIsWhole) {
    rsBible = dbBible.OpenRecordset(
        u"SELECT * FROM tblMain WHERE (((body like \"*Verse 66:22:2*\")) )"_s, dbOpenDynaset);
    InQuery = On;
    window().UpDateBibleText(true);
    InQuery = Off;
    EXPECT_EQ(window().Caption(), u"Lumenvia Professional King James [Revelation 22:2] "_s);
    EXPECT_EQ(window().txtMain.Text().count(u"Verse"_s), 3); // 2, 20 and 21
    EXPECT_EQ(position(), u"66:22:20"_s);
}

TEST_F(Page, aQueryWithASingleHitShowsIt) {
    rsBible = dbBible.OpenRecordset(
        u"SELECT * FROM tblMain WHERE (((body like \"*Verse 66:22:21*\")) )"_s, dbOpenDynaset);
    InQuery = On;
    window().UpDateBibleText(true);
    InQuery = Off;
    EXPECT_EQ(window().txtMain.Text().count(u"Verse"_s), 1);
    EXPECT_EQ(position(), u"66:22:21"_s);
}

TEST_F(Page, showsTheNoteOfTheRowUnderTheRewoundCursor) {
    VersesPerPage = 24;
    rsBible.Seek(u"="_s, 40, 1, 1);
    setNote(u"the first"_s);
    show(40, 1, 1);
    EXPECT_EQ(position(), u"40:1:1"_s);
    EXPECT_EQ(window().txtNote.Text(), u"the first"_s);
}

TEST_F(Page, theNoteBoxIsNeverQuiteEmpty) {
    VersesPerPage = 24;
    const std::pair<QVariant, QString> notes[] = {
        {QVariant(), u" "_s},
        {u""_s, u" "_s},
        {u" "_s, u"  "_s},
        {u"x"_s, u"x "_s},
        {u"xy"_s, u"xy"_s}};
    for (const auto& [stored, shown] : notes) {
        rsBible.Seek(u"="_s, 40, 1, 1);
        setNote(stored);
        show(40, 1, 1);
        EXPECT_EQ(window().txtNote.Text(), shown);
    }
}

TEST_F(Page, marksTheFirstPlaceOfTheFindBarsText) {
    window().txtFind.setText(u"verse 40:1:2"_s);
    show(40, 1, 1);
    EXPECT_EQ(window().txtMain.SelLength(), 0);
    const int place = static_cast<int>(window().txtMain.Text().indexOf(u"Verse 40:1:2."_s));
    window().txtMain.setSelStart(place);
    window().txtMain.setSelLength(12);
    EXPECT_TRUE(window().txtMain.SelBold());
    EXPECT_EQ(window().txtMain.SelColor(), QColor(0, 0, 255));
    window().txtMain.setSelStart(place + 13);
    window().txtMain.setSelLength(1);
    EXPECT_EQ(window().txtMain.SelColor(), QColor(0, 0, 0));
}

TEST_F(Page, aFindBarTextThatIsNotThereMarksNothing) {
    window().txtFind.setText(u"nowhere"_s);
    show(40, 1, 24);
    EXPECT_EQ(window().txtMain.Text().count(u"Verse"_s), 2);
    window().txtMain.setSelStart(20);
    window().txtMain.setSelLength(1);
    EXPECT_EQ(window().txtMain.SelColor(), QColor(0, 0, 0));
}

TEST_F(Page, inAQueryTheFirstTwoWordsAreMarked) {
    QueryWords = {u"verse"_s, u"40"_s, u"1:25"_s};
    InQuery = On;
    show(40, 1, 24);
    EXPECT_EQ(marks(), "Matthew 1:24 xxxxx xx:1:24. \nMatthew 1:25 xxxxx xx:1:25. ");
    // A search begins with the second character of the page.
    QueryWords = {QString(), u"matthew"_s, u"verse"_s};
    show(40, 1, 24);
    EXPECT_EQ(marks(), "Matthew 1:24 Verse 40:1:24. \nxxxxxxx 1:25 Verse 40:1:25. ");
}

TEST_F(Page, inAQueryTheReaderStandsAtItsTopWithTheOldPointer) {
    QueryWords = {u"verse"_s};
    InQuery = On;
    window().txtFind.SetFocus();
    show(40, 1, 24);
    RichTextBox& page = window().txtMain;
    EXPECT_EQ(page.SelStart(), 1);
    EXPECT_EQ(page.SelLength(), 0);
    EXPECT_TRUE(page.Visible());
    EXPECT_EQ(window().focusWidget(), &page);
    EXPECT_EQ(window().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Page, inAQueryTheFindBarsTextIsMarkedLast) {
    QueryWords = {u"verse"_s};
    InQuery = On;
    window().txtFind.setText(u"1:25"_s);
    show(40, 1, 24);
    EXPECT_EQ(window().txtMain.SelStart(), window().txtMain.Text().indexOf(u"1:25"_s));
    EXPECT_EQ(window().txtMain.SelLength(), 0);
    EXPECT_EQ(marks(), "Matthew 1:24 xxxxx 40:1:24. \nMatthew 1:25 xxxxx 40:1:25. ");
}

TEST_F(Page, outsideAQueryNoWordIsMarked) {
    QueryWords = {u"Verse"_s};
    show(40, 1, 24);
    window().txtMain.setSelStart(14);
    window().txtMain.setSelLength(2);
    EXPECT_FALSE(window().txtMain.SelUnderline());
}

TEST_F(Page, takesTheUsersColoursAndTheNoteHisFont) {
    BackRed = 10;
    BackGreen = 300;
    BackBlue = -5;
    TextRed = 7;
    TextGreen = 8;
    TextBlue = 9;
    MainFontSize = 15;
    MainFontName = u"Liberation Mono"_s;
    MainBold = -1;
    MainItalic = -1;
    MainUnderline = -1;
    window().FormatText();
    EXPECT_EQ(window().txtMain.BackColor(), QColor(10, 255, 0));
    EXPECT_EQ(window().txtNote.palette().color(QPalette::Base), QColor(10, 255, 0));
    EXPECT_EQ(window().txtNote.palette().color(QPalette::Text), QColor(7, 8, 9));
    const QFont font = window().txtNote.font();
    EXPECT_EQ(font.pointSizeF(), 15);
    EXPECT_EQ(font.family(), u"Liberation Mono"_s);
    EXPECT_TRUE(font.bold() && font.italic() && font.underline());
}

TEST_F(Page, bodiesThatLookLikeCodesBreakNothing) {
    const std::pair<QString, QString> bodies[] = {
        {u"a {brace} b"_s, u"a brace b "_s},
        {u"a \\backslash b"_s, u"a b "_s},
        {u"a \\\\ b"_s, u"a \\ b "_s},
        {u"}}}} c"_s, u" c "_s},
        {u"{{{{ d"_s, u" d "_s},
        {QChar(30) + u"00"_s, {}},
    };
    Verses verses;
    for (const auto& [body, shown] : bodies)
        verses.append({1, 1 + static_cast<int>(verses.size()), 1, body});
    openTranslation(verses + chapterOf(2, 1, 1), u"YLT.mdb"_s);
    for (int chapter = 1; chapter <= verses.size(); ++chapter) {
        show(1, chapter, 1);
        EXPECT_EQ(
            window().txtMain.Text().toStdString(),
            u"Genesis %1:1 %2"_s.arg(chapter)
                .arg(bodies[static_cast<size_t>(chapter) - 1].second)
                .toStdString());
    }
}

TEST_F(Page, aBodyThatOpensATableHidesNoMoreThanItsOwnPage) {
    openTranslation(
        {{1, 1, 1, u"a {\\fonttbl b"_s}, {1, 1, 2, u"c"_s}, {1, 2, 1, u"d"_s}, {1, 3, 1, u"e"_s}},
        u"YLT.mdb"_s);
    show(1, 1, 1);
    EXPECT_EQ(window().txtMain.Text(), u"Genesis 1:1 a "_s);
    show(1, 2, 1);
    EXPECT_EQ(window().txtMain.Text(), u"Genesis 2:1 d "_s);
}

TEST_F(Page, printerOutputRunsOverChaptersAndPutsTheCursorBack) {
    VersesPerPage = 2;
    rsBible.Seek(u"="_s, 40, 1, 24);
    EXPECT_EQ(
        window().FormatPrinterOutput(),
        u"Bible translation used: King James\r\n\r\nMatthew 1:24 Verse 40:1:24.\r\n"
        u"Matthew 1:25 Verse 40:1:25.\r\nMatthew 2:1 Verse 40:2:1.\r\n"_s);
    EXPECT_EQ(position(), u"40:1:24"_s);
}

TEST_F(Page, printerOutputPassesOverARowThatCannotBeRead) {
    VersesPerPage = 2;
    rsBible.Seek(u"="_s, 40, 1, 24);
    rsBible.Edit();
    rsBible.Fields(4) = QVariant();
    rsBible.Update();
    EXPECT_EQ(
        window().FormatPrinterOutput(),
        u"Bible translation used: King James\r\n\r\nMatthew 1:25 Verse 40:1:25.\r\n"
        u"Matthew 2:1 Verse 40:2:1.\r\n"_s);
    EXPECT_EQ(position(), u"40:1:24"_s);
}

TEST_F(Page, printerOutputStopsOnTheLastRowAndOnTheFirst) {
    rsBible.Seek(u"="_s, 66, 22, 21);
    EXPECT_EQ(
        window().FormatPrinterOutput(),
        u"Bible translation used: King James\r\n\r\nRevelation 22:21 Verse 66:22:21.\r\n"_s);
    EXPECT_EQ(position(), u"40:2:3"_s);
    rsBible.MoveFirst();
    VersesPerPage = 500;
    EXPECT_EQ(window().FormatPrinterOutput().count(u"\r\n"_s), 2 + 301);
    EXPECT_EQ(position(), u"1:1:1"_s);
}
