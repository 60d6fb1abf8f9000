// The advanced search: what it searches for, what it finds, and where it leaves the reader.
#include "search/HolyTextFindFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class HolyTextFind : public HolyTextFindFixture {
protected:
    static void expectCriteria(frmHolyTextFind& find, const QString& criteria) {
        find.MakeSQL();
        EXPECT_EQ(find.SearchSQL.toStdString(), criteria.toStdString());
    }

    // The criteria for all books, each book and each testament.
    static void expectEveryScope(frmHolyTextFind& find, const QString& base) {
        for (int book = 1; book <= 66; ++book) {
            find.cboBook.setListIndex(book);
            expectCriteria(find, base + u" AND ((book = "_s + QString::number(book) + u"))"_s);
        }
        find.cboTestament.setListIndex(1);
        expectCriteria(find, base + u" AND ((book < 40))"_s);
        find.cboTestament.setListIndex(2);
        expectCriteria(find, base + u" AND ((book > 39))"_s);
        find.cboTestament.setListIndex(0);
        expectCriteria(find, base);
    }
};

const QString PlainOne = u" ((( body like \"*one*\"))"_s;
const QString PlainTwo = u"(( body like \"*two*\"))"_s;
const QString WholeOne =
    u" ((body like \"* one *\") or (body like \"* one.*\") or (body like \"* one:*\")"
    u" or (body like \"* one;*\") or (body like \"* one,*\")"_s;
const QString WholeTwo =
    u"( (body like \"* two *\") or (body like \"* two.*\") or (body like \"* two:*\")"
    u" or (body like \"* two;*\") or (body like \"* two,*\"))"_s;

} // namespace

TEST_F(HolyTextFind, makesItsCriteriaToTheLetterForEveryBoxAndScope) {
    inWindow([](frmHolyTextFind& find) {
        find.txtFind(0).setText(u"one"_s);
        for (int boxes = 0; boxes < 8; ++boxes) {
            const bool both = (boxes & 1) != 0;
            const bool whole = (boxes & 2) != 0;
            const bool two = (boxes & 4) != 0;
            find.optAndOr(both ? 0 : 1).setValue(true);
            find.chkMatchWholeWord.setValue(whole);
            find.txtFind(1).setText(two ? u"two"_s : QString());
            const QString second =
                (both ? u"  AND "_s : u"  OR "_s) + (whole ? WholeTwo : PlainTwo);
            expectEveryScope(
                find, (whole ? WholeOne : PlainOne) + (two ? second : QString()) + u')');
        }
        press(find, Close);
    });
}

TEST_F(HolyTextFind, itsCriteriaForTwoWholeWordsInTheNewTestamentReadLikeThis) {
    inWindow([](frmHolyTextFind& find) {
        find.txtFind(0).setText(u"a"_s);
        find.txtFind(1).setText(u"b"_s);
        find.optAndOr(0).setValue(true);
        find.chkMatchWholeWord.setValue(true);
        find.cboTestament.setListIndex(2);
        expectCriteria(
            find, u" ((body like \"* a *\") or (body like \"* a.*\") or (body like \"* a:*\") or "
                  u"(body like \"* a;*\") or (body like \"* a,*\")  AND ( (body like \"* b *\") or "
                  u"(body like \"* b.*\") or (body like \"* b:*\") or (body like \"* b;*\") or "
                  u"(body like \"* b,*\"))) AND ((book > 39))"_s);
        press(find, Close);
    });
}

TEST_F(HolyTextFind, showsEachHitOnThePageAndInTheLists) {
    inWindow([](frmHolyTextFind& find) {
        for (const QString& top :
             {u"Genesis 1:2 Now grace, and peace."_s, u"Genesis 1:3 A disgrace to all."_s,
              u"Exodus 1:1 Peace with grace?"_s, u"Psalms 119:176 My grace; at last."_s,
              u"Matthew 1:1 The grace of the book."_s}) {
            search(find, u"grace"_s);
            EXPECT_EQ(pageTop(), top);
        }
        EXPECT_EQ(listed(), u"Matthew 1 1"_s);
        EXPECT_EQ(position(), u"40:1:1"_s);
        press(find, Previous);
        EXPECT_EQ(position(), u"19:119:176"_s);
        EXPECT_EQ(find.Caption(), u"Advanced Search of Verses"_s);
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Psalms 119:176 My grace; at last."_s);
    expectReadingAgain();
}

TEST_F(HolyTextFind, aWordOfOneLetterIsAccepted) {
    inWindow([](frmHolyTextFind& find) {
        search(find, u"y"_s);
        EXPECT_EQ(position(), u"19:119:176"_s);
        press(find, Close);
    });
}

TEST_F(HolyTextFind, asksForAFirstWord) {
    inWindow([this](frmHolyTextFind& find) {
        find.txtFind(1).setText(u"second"_s);
        for (const Press button : {First, Next, Previous}) {
            find.cmdHelp.SetFocus();
            desktop.expectMessage(
                {u"Please enter some text to search for."_s, u"Need Text"_s,
                 MessageIcon::Information});
            press(find, button);
            EXPECT_EQ(find.focusWidget(), &find.txtFind(0));
            EXPECT_FALSE(find.Repositioned);
        }
        press(find, Close);
    });
    expectReadingAgain();
}

TEST_F(HolyTextFind, bothAndEitherWords) {
    inWindow([this](frmHolyTextFind& find) {
        EXPECT_TRUE(find.optAndOr(1).Value());
        find.optAndOr(0).setValue(true);
        find.txtFind(1).setText(u"peace"_s);
        for (const QString& place : {u"1:1:2"_s, u"2:1:1"_s, u"66:22:21"_s}) {
            search(find, u"grace"_s);
            EXPECT_EQ(position(), place);
        }
        expectNotFound(Answer::Yes);
        expectBeginning();
        press(find, Next);
        find.optAndOr(1).setValue(true);
        for (const QString& place : {u"1:2:1"_s, u"40:1:1"_s}) {
            find.txtFind(1).setText(u"the book"_s);
            search(find, u"such"_s);
            EXPECT_EQ(position(), place);
        }
        press(find, Close);
    });
}

TEST_F(HolyTextFind, anAndBindsToTheLastAlternativeOfAWholeWord) {
    inWindow([](frmHolyTextFind& find) {
        find.optAndOr(0).setValue(true);
        find.chkMatchWholeWord.setValue(true);
        find.txtFind(1).setText(u"book"_s);
        // "Now grace, and peace." meets the last alternative and has no book; the Psalm's
        // "grace;" meets another one and needs none.
        search(find, u"grace"_s);
        EXPECT_EQ(position(), u"19:119:176"_s);
        press(find, Close);
    });
}

TEST_F(HolyTextFind, closingWithoutAHitReturnsToTheVerseOfTheOpening) {
    rsBible.Seek(u"="_s, 2, 1, 1);
    inWindow([this](frmHolyTextFind& find) {
        EXPECT_EQ(position(), u"1:1:1"_s);
        expectNotFound(Answer::No);
        search(find, u"xyzzy"_s);
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Exodus 1:1 Peace with grace?"_s);
    EXPECT_EQ(listed(), u"Exodus 1 1"_s);
    expectReadingAgain();
}

TEST_F(HolyTextFind, closingAfterTheWrapReturnsToTheLastHit) {
    inWindow([this](frmHolyTextFind& find) {
        search(find, u"begins"_s);
        expectNotFound(Answer::Yes);
        expectBeginning();
        press(find, Next);
        EXPECT_EQ(pageTop(), u"Genesis 1:1 In the beginning grace was there."_s);
        EXPECT_EQ(listed(), u"Genesis 1 1"_s);
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
}

TEST_F(HolyTextFind, closingAfterARefusedWrapReturnsToTheLastHit) {
    inWindow([this](frmHolyTextFind& find) {
        search(find, u"begins"_s);
        expectNotFound(Answer::No);
        press(find, Next);
        EXPECT_EQ(position(), u"40:1:2"_s);
        EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
}

TEST_F(HolyTextFind, theWrapStartsBehindGenesisWhateverTheScope) {
    inWindow([this](frmHolyTextFind& find) {
        find.cboTestament.setListIndex(2);
        search(find, u"lord"_s);
        expectNotFound(Answer::Yes);
        expectBeginning();
        press(find, Next);
        EXPECT_EQ(position(), u"1:1:1"_s);
        EXPECT_TRUE(find.Repositioned);
        search(find, u"grace"_s);
        EXPECT_EQ(position(), u"40:1:1"_s);
        press(find, Close);
    });
}

TEST_F(HolyTextFind, nothingIsFoundBeforeTheFirstHit) {
    inWindow([this](frmHolyTextFind& find) {
        search(find, u"disgrace"_s);
        expectNonePrior();
        press(find, Previous);
        EXPECT_EQ(position(), u"1:1:3"_s);
        EXPECT_EQ(pageTop(), u"Genesis 1:3 A disgrace to all."_s);
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Genesis 1:3 A disgrace to all."_s);
}

TEST_F(HolyTextFind, aNewWordGoesOnFromTheCursorAndANewScopeStartsAnew) {
    inWindow([](frmHolyTextFind& find) {
        search(find, u"at last"_s);
        search(find, u"grace"_s);
        EXPECT_EQ(position(), u"40:1:1"_s);
        find.cboBook.setListIndex(1);
        EXPECT_FALSE(find.Repositioned);
        press(find, Next);
        EXPECT_EQ(position(), u"1:1:2"_s);
        find.cboTestament.setListIndex(1);
        press(find, Next);
        EXPECT_EQ(position(), u"1:1:2"_s);
        find.cboTestament.setListIndex(2);
        press(find, Next);
        EXPECT_EQ(position(), u"40:1:2"_s);
        press(find, Close);
    });
}

TEST_F(HolyTextFind, searchesTheRedLettersPrefixToo) {
    Verses verses = graceVerses();
    verses[7].body = QChar(30) + u"000 005grace begins this one."_s;
    startOn(verses);
    inWindow([](frmHolyTextFind& find) {
        search(find, u"000 005"_s);
        EXPECT_EQ(position(), u"40:1:2"_s);
        EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
        press(find, Close);
    });
}

TEST_F(HolyTextFind, openedInAQueryItFindsWhatTheQueryLacks) {
    beInQuery(u"peace"_s);
    window().activateWindow();
    desktop.expectWindow([](QWidget& opened) {
        auto& find = static_cast<frmHolyTextFind&>(opened);
        EXPECT_EQ(InQuery, On);
        search(find, u"begins"_s);
        EXPECT_EQ(position(), u"40:1:2"_s);
        EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
        press(find, Close);
    });
    QTest::keyClick(&window(), Qt::Key_F7);
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
    EXPECT_TRUE(window().cboBook.Enabled() && window().cmbTestament.Enabled());
    expectReadingAgain();
}

TEST_F(HolyTextFind, openedInAQueryItsClosingEndsTheQuery) {
    beInQuery(u"peace"_s);
    rsBible.MoveNext();
    inWindow([](frmHolyTextFind& find) { press(find, Close); });
    EXPECT_EQ(pageTop(), u"Exodus 1:1 Peace with grace?"_s);
    for (const ComboBox* list :
         {&window().cmbTestament, &window().cboBook, &window().cboChapter, &window().cboVerse})
        EXPECT_TRUE(list->Enabled());
    expectReadingAgain();
}

TEST_F(HolyTextFind, openedBehindTheLastHitOfAQueryItReturnsToTheVerseThatTheListsShow) {
    beInQuery(u"peace"_s);
    rsBible.MoveNext();
    window().showPlaceInLists();
    rsBible.MoveLast();
    rsBible.MoveNext(); // as the index leaves it
    inWindow([](frmHolyTextFind& find) { press(find, Close); });
    EXPECT_EQ(pageTop(), u"Exodus 1:1 Peace with grace?"_s);
    EXPECT_EQ(listed(), u"Exodus 1 1"_s);
    expectReadingAgain();
}

TEST_F(HolyTextFind, theToolBarsButtonEndsAQueryFirst) {
    beInQuery(u"peace"_s);
    desktop.expectWindow([](QWidget& opened) {
        EXPECT_EQ(InQuery, Off);
        press(static_cast<frmHolyTextFind&>(opened), Close);
    });
    window().cmdMain(4).setValue(true);
    desktop.expectWindow(
        [](QWidget& opened) { press(static_cast<frmHolyTextFind&>(opened), Close); });
    window().mnutext(7).trigger();
}
