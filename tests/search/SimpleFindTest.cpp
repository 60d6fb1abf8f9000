// The simple search: what it searches for, what it finds, and where it leaves the reader.
#include "search/SimpleFindFixture.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

class SimpleFind : public SimpleFindFixture {};

} // namespace

TEST_F(SimpleFind, makesItsCriteriaToTheLetter) {
    inWindow([](frmSimpleFind& find) {
        const QString plain = u" (( body like \"*a b*\"))"_s;
        const QString whole =
            u" ((body like \"* a b *\") or (body like \"* a b.*\") or (body like \"* a b:*\")"
            u" or (body like \"* a b;*\") or (body like \"* a b,*\"))"_s;
        find.txtFind.setText(u"a b"_s);
        for (const bool wholeWord : {false, true}) {
            const QString base = wholeWord ? whole : plain;
            find.chkMatchWholeWord.setValue(wholeWord);
            for (int book = 1; book <= 66; ++book) {
                find.cboBook.setListIndex(book);
                EXPECT_EQ(
                    find.MakeSimpleSQL(), base + u" AND (book = "_s + QString::number(book) + u')');
            }
            find.cboTestament.setListIndex(1);
            EXPECT_EQ(find.MakeSimpleSQL(), base + u" AND (book < 40)"_s);
            find.cboTestament.setListIndex(2);
            EXPECT_EQ(find.MakeSimpleSQL(), base + u" AND (book > 39)"_s);
            find.cboTestament.setListIndex(0);
            EXPECT_EQ(find.MakeSimpleSQL(), base);
        }
        press(find, Close);
    });
}

TEST_F(SimpleFind, takesTheWordAsTyped) {
    inWindow([](frmSimpleFind& find) {
        find.txtFind.setText(u" a\"'*?# "_s);
        EXPECT_EQ(find.MakeSimpleSQL(), u" (( body like \"* a\"'*?# *\"))"_s);
        press(find, Close);
    });
}

TEST_F(SimpleFind, findsBehindTheFirstVerseAndTheListsFollow) {
    inWindow([](frmSimpleFind& find) {
        const QString page = window().txtMain.Text();
        search(find, u"grace"_s);
        EXPECT_EQ(position(), u"1:1:2"_s);
        EXPECT_EQ(listed(), u"Genesis 1 2"_s);
        press(find, Next);
        press(find, Next);
        EXPECT_EQ(listed(), u"Exodus 1 1"_s);
        press(find, Previous);
        EXPECT_EQ(listed(), u"Genesis 1 3"_s);
        EXPECT_EQ(find.Caption(), u"Simple Search of Verses"_s);
        EXPECT_EQ(window().txtFind.Text(), u"grace"_s);
        EXPECT_EQ(window().txtMain.Text(), page);
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Genesis 1:3 A disgrace to all."_s);
    EXPECT_EQ(window().focusWidget(), &window().txtFind);
    expectReadingAgain();
}

TEST_F(SimpleFind, aWholeWordNeedsABlankBeforeItAndAFollower) {
    inWindow([this](frmSimpleFind& find) {
        find.chkMatchWholeWord.setValue(true);
        for (const QString& place : {u"1:1:2"_s, u"19:119:176"_s, u"40:1:1"_s, u"66:22:21"_s}) {
            search(find, u"grace"_s);
            EXPECT_EQ(position(), place);
        }
        expectNotFound(Answer::No);
        press(find, Next);
        EXPECT_EQ(position(), u"66:22:21"_s);
        press(find, Close);
    });
}

TEST_F(SimpleFind, asksForTwoCharacters) {
    inWindow([this](frmSimpleFind& find) {
        find.Repositioned = true;
        for (const QString& text : {QString(), u"g"_s, u" "_s}) {
            for (const Press button : {First, Next, Previous}) {
                find.cmdHelp.SetFocus();
                desktop.expectMessage(
                    {u"Please enter some text to search for."_s, u"Need Text"_s,
                     MessageIcon::Information});
                search(find, text, button);
                EXPECT_EQ(find.focusWidget(), &find.txtFind);
                EXPECT_TRUE(find.Repositioned);
                EXPECT_EQ(position(), u"1:1:1"_s);
            }
        }
        press(find, Close);
    });
    EXPECT_EQ(listed(), u"Genesis 1 1"_s);
}

TEST_F(SimpleFind, aScopeIsSearchedBehindItsFirstVerse) {
    inWindow([](frmSimpleFind& find) {
        find.cboTestament.setListIndex(2);
        search(find, u"grace"_s);
        EXPECT_EQ(position(), u"40:1:2"_s);
        find.cboTestament.setListIndex(1);
        EXPECT_FALSE(find.Repositioned);
        press(find, Next);
        EXPECT_EQ(position(), u"1:1:2"_s);
        find.cboTestament.setListIndex(0);
        find.cboBook.setListIndex(40);
        press(find, Next);
        EXPECT_EQ(position(), u"40:1:2"_s);
        press(find, Close);
    });
}

TEST_F(SimpleFind, aScopeEndsTheSearch) {
    inWindow([this](frmSimpleFind& find) {
        find.cboBook.setListIndex(1);
        search(find, u"grace"_s);
        press(find, Next);
        EXPECT_EQ(position(), u"1:1:3"_s);
        expectNotFound(Answer::No);
        press(find, Next);
        EXPECT_EQ(position(), u"1:1:3"_s);
        EXPECT_EQ(find.cboBook.ListIndex(), 1);
        EXPECT_EQ(listed(), u"Genesis 1 3"_s);
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Genesis 1:3 A disgrace to all."_s);
}

TEST_F(SimpleFind, yesLeadsToGenesisAndDropsTheBook) {
    inWindow([this](frmSimpleFind& find) {
        find.cboBook.setListIndex(66);
        expectNotFound(Answer::Yes);
        expectBeginning();
        search(find, u"begins"_s);
        EXPECT_EQ(find.cboBook.ListIndex(), 0);
        EXPECT_FALSE(find.Repositioned);
        EXPECT_EQ(find.Caption(), u"Simple Search of Verses"_s);
        EXPECT_EQ(listed(), u"Genesis 1 1"_s);
        press(find, Next);
        EXPECT_EQ(listed(), u"Matthew 1 2"_s);
        press(find, Close);
    });
}

TEST_F(SimpleFind, findPreviousInAFreshScopeHasNothingBeforeIt) {
    window().cboBook.setListIndex(39);
    inWindow([this](frmSimpleFind& find) {
        expectNoneBefore(u"grace"_s);
        search(find, u"grace"_s, Previous);
        EXPECT_EQ(position(), u"1:1:1"_s);
        EXPECT_EQ(listed(), u"Matthew 1 1"_s);
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Matthew 1:1 The grace of the book."_s);
}

TEST_F(SimpleFind, findFirstStartsAnewAndIsNeverShown) {
    inWindow([this](frmSimpleFind& find) {
        EXPECT_FALSE(find.cmdFind(First).isVisible());
        find.cboTestament.setListIndex(2);
        search(find, u"grace"_s, First);
        EXPECT_EQ(position(), u"40:1:2"_s);
        press(find, Next);
        press(find, First);
        EXPECT_EQ(position(), u"40:1:2"_s);
        find.cboTestament.setListIndex(0);
        find.cboBook.setListIndex(1);
        press(find, First);
        EXPECT_EQ(position(), u"1:1:2"_s);
        desktop.expectMessage(
            {u"There were no verses found."_s, u"Not Found"_s, MessageIcon::Question});
        search(find, u"lord"_s, First);
        EXPECT_EQ(listed(), u"Genesis 1 2"_s);
        press(find, Close);
    });
}

TEST_F(SimpleFind, theWrapStartsBehindGenesisOneOne) {
    inWindow([this](frmSimpleFind& find) {
        search(find, u"begins"_s);
        expectNotFound(Answer::Yes);
        expectBeginning();
        press(find, Next);
        EXPECT_EQ(position(), u"1:1:1"_s);
        EXPECT_EQ(listed(), u"Genesis 1 1"_s);
        search(find, u"grace"_s);
        EXPECT_EQ(position(), u"1:1:2"_s);
        expectNotFound(Answer::No);
        search(find, u"In the beginning"_s);
        EXPECT_EQ(position(), u"1:1:2"_s);
        press(find, Close);
    });
}

TEST_F(SimpleFind, theWrapKeepsATestament) {
    inWindow([this](frmSimpleFind& find) {
        find.cboTestament.setListIndex(2);
        search(find, u"lord"_s);
        expectNotFound(Answer::Yes);
        expectBeginning();
        press(find, Next);
        EXPECT_EQ(find.cboTestament.ListIndex(), 2);
        EXPECT_EQ(listed(), u"Genesis 1 1"_s);
        // The list of books stood on its first row, and so the scope is not fresh.
        EXPECT_TRUE(find.Repositioned);
        search(find, u"grace"_s);
        EXPECT_EQ(position(), u"40:1:1"_s);
        press(find, Close);
    });
}

TEST_F(SimpleFind, aWordOnlyInTheFirstVerseIsMissed) {
    inWindow([this](frmSimpleFind& find) {
        expectNotFound(Answer::No);
        search(find, u"In the beginning"_s);
        EXPECT_EQ(position(), u"1:1:1"_s);
        press(find, Close);
    });
}

TEST_F(SimpleFind, aWholeWordBeforeAQuestionMarkOrAtTheStartIsMissed) {
    inWindow([this](frmSimpleFind& find) {
        find.chkMatchWholeWord.setValue(true);
        find.cboBook.setListIndex(2);
        expectNotFound(Answer::No);
        search(find, u"grace"_s);
        find.cboBook.setListIndex(40);
        expectNotFound(Answer::No);
        search(find, u"grace"_s);
        EXPECT_EQ(position(), u"40:1:1"_s);
        press(find, Close);
    });
}

TEST_F(SimpleFind, searchesTheRedLettersPrefixToo) {
    Verses verses = graceVerses();
    verses[7].body = QChar(30) + u"000 005grace begins this one."_s;
    startOn(verses);
    inWindow([](frmSimpleFind& find) {
        search(find, u"000 005"_s);
        EXPECT_EQ(position(), u"40:1:2"_s);
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
}

TEST_F(SimpleFind, findFirstInTheOldTestamentGoesOnFromTheCursor) {
    inWindow([](frmSimpleFind& find) {
        find.cboTestament.setListIndex(1);
        for (const QString& place : {u"1:1:2"_s, u"1:1:3"_s, u"2:1:1"_s}) {
            search(find, u"grace"_s, First);
            EXPECT_EQ(position(), place);
        }
        press(find, Close);
    });
}

TEST_F(SimpleFind, closingEndsAQuery) {
    beInQuery(u"peace"_s);
    inWindow([](frmSimpleFind& find) {
        search(find, u"begins"_s);
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
    EXPECT_TRUE(window().cboBook.Enabled() && window().cmbTestament.Enabled());
    expectReadingAgain();
}

TEST_F(SimpleFind, onAHitThatTheListLacksItShowsTheFirstVerseOfThePsalmAndCloseLeadsThere) {
    Verses verses = sampleVerses();
    std::ranges::find(verses, 176, &Verse::verse)->body = u"My grace; at last."_s;
    startOn(verses);
    rsBible.Seek(u"="_s, 19, 119, 5);
    window().showPlaceInLists();
    inWindow([](frmSimpleFind& find) {
        search(find, u"at last"_s);
        EXPECT_EQ(position(), u"19:119:176"_s);
        EXPECT_EQ(listed(), u"Psalms 119 1"_s);
        EXPECT_EQ(SettingCombos, Off);
        press(find, Close);
    });
    EXPECT_TRUE(window().Caption().contains(u"[Psalms 119:1]"_s));
    expectReadingAgain();
}
