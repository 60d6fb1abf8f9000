// Whatever is typed into a search box leads to the box of a miss, to that of an error or to
// silence, and never to a wrong hit or a changed file. The query has the same test beside its own.
#include "search/FindBarFixture.h"
#include "search/HolyTextFindFixture.h"
#include "search/NoteSearchFixture.h"
#include "search/SearchTexts.h"
#include "search/SimpleFindFixture.h"

namespace {

// Looks at the bytes of the translation before and after.
template <class Fixture>
class OnAnUnchangedFile : public Fixture {
protected:
    void SetUp() override {
        Fixture::SetUp();
        m_before = contentOf(this->programFile(u"KJV.mdb"_s));
        ASSERT_FALSE(m_before.isEmpty());
    }

    void TearDown() override { EXPECT_EQ(contentOf(this->programFile(u"KJV.mdb"_s)), m_before); }

private:
    QByteArray m_before;
};

class FindBarInput : public OnAnUnchangedFile<FindBarFixture> {};

class SimpleFindInput : public OnAnUnchangedFile<SimpleFindFixture> {
protected:
    static bool isLongEnough(const QString& text) { return text.size() > 1; }
};

class HolyTextFindInput : public OnAnUnchangedFile<HolyTextFindFixture> {
protected:
    // Searches for a text in one box after the other, plain and as a whole word. What the second
    // box holds beside it is nowhere in the Bible.
    static void searchInBothBoxes(
        frmHolyTextFind& find, const QString& text, Press button,
        const std::function<void()>& beforePress) {
        for (const int box : {0, 1}) {
            for (const bool whole : {false, true}) {
                find.txtFind(box).setText(text);
                find.txtFind(1 - box).setText(u"xyzzy"_s);
                find.chkMatchWholeWord.setValue(whole);
                beforePress();
                press(find, button);
                EXPECT_EQ(find.Caption(), u"Advanced Search of Verses"_s);
                EXPECT_NE(find.cursor().shape(), Qt::WaitCursor);
                EXPECT_EQ(HoldUpdates, Off);
            }
        }
    }
};

class NoteSearchInput : public OnAnUnchangedFile<NoteSearchFixture> {};

} // namespace

TEST_F(FindBarInput, findsNoOddText) {
    for (const QString& text : oddTexts() + doubleQuotedTexts()) {
        expectMissForward(text);
        findNext(text);
        EXPECT_EQ(position(), u"1:1:1"_s);
        expectMissBackward(text);
        findPrevious(text);
        EXPECT_EQ(position(), u"1:1:1"_s);
    }
    expectReadingAgain();
}

TEST_F(FindBarInput, ofASpoiledTextOnlyTheTitleTells) {
    show(40, 1, 1);
    const QString page = window().txtMain.TextRTF();
    const QString place = position();
    const QString lists = listed();
    HistoryBook.fill(0);
    for (const QString& text : singleQuotedTexts()) {
        findNext(text);
        EXPECT_EQ(window().Caption(), u"Searching for "_s + text);
        findPrevious(text);
        EXPECT_EQ(window().txtMain.TextRTF(), page);
        EXPECT_EQ(position(), place);
        EXPECT_EQ(listed(), lists);
    }
    EXPECT_EQ(HistoryBook[0], 0.F);
    expectReadingAgain();
}

TEST_F(SimpleFindInput, findsNoOddText) {
    QStringList texts = oddTexts() + singleQuotedTexts();
    texts.removeIf([](const QString& text) { return !isLongEnough(text); });
    inWindow([&](frmSimpleFind& find) {
        for (const QString& text : texts) {
            for (const bool whole : {false, true}) {
                find.chkMatchWholeWord.setValue(whole);
                expectNotFound(Answer::No);
                search(find, text);
                EXPECT_EQ(position(), u"1:1:1"_s);
            }
        }
        press(find, Close);
    });
    expectReadingAgain();
}

TEST_F(SimpleFindInput, ofASpoiledTextNothingTells) {
    QStringList texts = doubleQuotedTexts();
    texts.removeIf([](const QString& text) { return !isLongEnough(text); });
    inWindow([&](frmSimpleFind& find) {
        search(find, u"begins"_s);
        for (const QString& text : texts) {
            for (const bool whole : {false, true}) {
                find.chkMatchWholeWord.setValue(whole);
                for (const Press button : {First, Next, Previous}) {
                    search(find, text, button);
                    EXPECT_EQ(listed(), u"Matthew 1 2"_s);
                    EXPECT_EQ(position(), u"40:1:2"_s);
                    EXPECT_EQ(find.Caption(), u"Simple Search of Verses"_s);
                }
            }
        }
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
    expectReadingAgain();
}

TEST_F(SimpleFindInput, aSpoiledTextInAFreshScopeMovesToItsStartAndLeavesTheLists) {
    rsBible.Seek(u"="_s, 2, 1, 1);
    window().showPlaceInLists();
    inWindow([](frmSimpleFind& find) {
        find.cboTestament.setListIndex(2);
        search(find, u"a\"b"_s);
        EXPECT_TRUE(find.Repositioned);
        EXPECT_EQ(position(), u"40:1:1"_s);
        EXPECT_EQ(listed(), u"Exodus 1 1"_s);
        search(find, u"grace"_s);
        EXPECT_EQ(position(), u"40:1:2"_s);
        press(find, Close);
    });
}

TEST_F(SimpleFindInput, starsAloneAreInEveryVerse) {
    inWindow([](frmSimpleFind& find) {
        search(find, u"**"_s);
        EXPECT_EQ(position(), u"1:1:2"_s);
        search(find, u"**"_s, Previous);
        EXPECT_EQ(position(), u"1:1:1"_s);
        press(find, Close);
    });
}

TEST_F(HolyTextFindInput, findsNoOddText) {
    inWindow([this](frmHolyTextFind& find) {
        for (const QString& text : oddTexts() + singleQuotedTexts()) {
            searchInBothBoxes(find, text, Next, [this] { expectNotFound(Answer::No); });
            searchInBothBoxes(find, text, Previous, [this] { expectNonePrior(); });
            EXPECT_EQ(position(), u"1:1:1"_s);
        }
        press(find, Close);
    });
    expectReadingAgain();
}

TEST_F(HolyTextFindInput, ofASpoiledTextTheStoresErrorTells) {
    inWindow([this](frmHolyTextFind& find) {
        search(find, u"begins"_s);
        const auto expectComplaint = [&] {
            find.MakeSQL();
            desktop.expectMessage(
                {complaintAbout(find.SearchSQL), u"Lumenvia"_s, MessageIcon::Exclamation});
        };
        for (const QString& text : doubleQuotedTexts()) {
            for (const Press button : {Next, Previous})
                searchInBothBoxes(find, text, button, expectComplaint);
            EXPECT_EQ(position(), u"40:1:2"_s);
            EXPECT_EQ(QueryWords[0], u"begins"_s);
        }
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
    expectReadingAgain();
}

TEST_F(HolyTextFindInput, aSpoiledTextInAFreshScopeMovesToItsStartAndShowsNothing) {
    show(2, 1, 1);
    rsBible.Seek(u"="_s, 2, 1, 1);
    inWindow([this](frmHolyTextFind& find) {
        find.cboTestament.setListIndex(2);
        const QString lists = listed();
        find.txtFind(0).setText(u"a\"b"_s);
        find.MakeSQL();
        desktop.expectMessage(
            {complaintAbout(find.SearchSQL), u"Lumenvia"_s, MessageIcon::Exclamation});
        press(find, Next);
        EXPECT_TRUE(find.Repositioned);
        EXPECT_EQ(position(), u"40:1:1"_s);
        EXPECT_EQ(pageTop(), u"Exodus 1:1 Peace with grace?"_s);
        EXPECT_EQ(listed(), lists);
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Exodus 1:1 Peace with grace?"_s);
    expectReadingAgain();
}

TEST_F(HolyTextFindInput, aStarAloneIsInEveryVerseAndMarksNothing) {
    inWindow([](frmHolyTextFind& find) {
        search(find, u"*"_s);
        EXPECT_EQ(position(), u"1:1:2"_s);
        EXPECT_EQ(pageTop(), u"Genesis 1:2 Now grace, and peace."_s);
        press(find, Next);
        EXPECT_EQ(position(), u"1:1:3"_s);
        press(find, Close);
    });
}

TEST_F(NoteSearchInput, findsNoOddText) {
    rsBible.Seek(u"="_s, 40, 2, 3);
    QStringList texts = oddTexts() + doubleQuotedTexts();
    texts.removeOne(u"\""_s); // that one is in a note
    open([&] {
        for (const QString& text : texts) {
            window().txtNoteSearch.setText(text);
            for (const int button : {First, Next, Previous}) {
                desktop.expectMessage(noMore(text));
                press(button);
                EXPECT_EQ(position(), u"40:2:3"_s);
            }
        }
        press(Close);
    });
    EXPECT_EQ(position(), u"40:2:3"_s);
}

TEST_F(NoteSearchInput, aSpoiledTextEndsInTheErrorAndClosesTheWindow) {
    for (const QString& text : singleQuotedTexts()) {
        rsBible.Seek(u"="_s, 40, 2, 3);
        open([&] {
            window().txtNoteSearch.setText(text);
            const QString complaint = complaintAbout(u"note like '*"_s + text + u"*'"_s);
            desktop.expectMessage(
                {u"Error in Note Search: "_s + complaint, u"Error"_s, MessageIcon::Information});
            press(First);
            EXPECT_FALSE(isLoaded<frmNoteSearch>());
        });
        expectPlace(u"Matthew 2:3"_s, u"40:2:3"_s, u" "_s);
        EXPECT_EQ(main().cursor().shape(), Qt::ArrowCursor);
    }
}
