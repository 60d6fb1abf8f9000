#include "search/frmSimpleFind.h"

#include "search/SearchFixture.h"

#include <QTest>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

enum Press { First, Next, Previous, Close };

class SimpleFind : public SearchFixture {
protected:
    // Opens the window from the menu; the action plays its user and must close it.
    void inWindow(const std::function<void(frmSimpleFind&)>& user) {
        desktop.expectWindow([&](QWidget& opened) { user(static_cast<frmSimpleFind&>(opened)); });
        window().mnuSearch(3).trigger();
        EXPECT_FALSE(isLoaded<frmSimpleFind>());
    }

    static void press(frmSimpleFind& find, Press button) { find.cmdFind(button).setValue(true); }

    static void search(frmSimpleFind& find, const QString& text, Press button = Next) {
        find.txtFind.setText(text);
        press(find, button);
    }

    void expectNotFound(Answer answer) {
        desktop.expectMessage(
            {u"After the current verse no verses were found.\r\n\r\n"
             u"Would you like to search from the beginning of the Bible (Genesis)?"_s,
             u"Not Found"_s, MessageIcon::Question, MessageButtons::YesNo},
            answer);
    }

    void expectBeginning() {
        desktop.expectMessage(
            {u"The current verse is now at the beginning of the Bible. Press Find Next to "
             u"continue."_s,
             u""_s, MessageIcon::Information});
    }

    void expectNoneBefore(const QString& text) {
        desktop.expectMessage(
            {u"Prior to the current verse no other contained the text: \n"_s + text,
             u"No More Found"_s, MessageIcon::Information});
    }
};

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

TEST_F(SimpleFind, opensWithTheFindBarsWordSelected) {
    window().txtFind.setText(u"peace"_s);
    inWindow([](frmSimpleFind& find) {
        EXPECT_EQ(find.txtFind.selectedText(), u"peace"_s);
        EXPECT_EQ(find.Caption(), u"Simple Search of Verses"_s);
        EXPECT_EQ(find.cboTestament.ListIndex(), 0);
        EXPECT_EQ(find.cboBook.ListIndex(), 0);
        EXPECT_EQ(find.cboBook.ListCount(), 67);
        EXPECT_EQ(find.cboBook.List(0), u"Any"_s);
        EXPECT_EQ(find.cboBook.List(40), u"Matthew"_s);
        EXPECT_FALSE(find.Repositioned);
        EXPECT_EQ(position(), u"1:1:1"_s);
        press(find, Close);
    });
    window().txtFind.setText(u"p"_s);
    inWindow([](frmSimpleFind& find) {
        EXPECT_EQ(find.txtFind.Text(), QString());
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

TEST_F(SimpleFind, aTestamentLeavesNoChoiceOfABook) {
    inWindow([](frmSimpleFind& find) {
        find.cboBook.setListIndex(5);
        find.cboTestament.setListIndex(2);
        EXPECT_EQ(find.cboBook.ListIndex(), 0);
        EXPECT_FALSE(find.cboBook.Enabled());
        find.Repositioned = true;
        find.cboTestament.setListIndex(0);
        EXPECT_TRUE(find.cboBook.Enabled());
        EXPECT_FALSE(find.Repositioned);
        find.Repositioned = true;
        find.cboBook.setListIndex(5);
        EXPECT_FALSE(find.Repositioned);
        EXPECT_EQ(find.cboTestament.ListIndex(), 0);
        press(find, Close);
    });
}

TEST_F(SimpleFind, aBookSetsTheTestamentBack) {
    inWindow([](frmSimpleFind& find) {
        find.cboTestament.setListIndex(1);
        find.cboBook.setListIndex(3);
        EXPECT_EQ(find.cboTestament.ListIndex(), 0);
        press(find, Close);
    });
}

TEST_F(SimpleFind, aWordThatSpoilsTheCriteriaShowsNothing) {
    inWindow([](frmSimpleFind& find) {
        search(find, u"begins"_s);
        for (const QString& text : {u"\"\""_s, u"a\"b"_s, u"\" or 1=1"_s, u"x\" (("_s}) {
            for (const Press button : {First, Next, Previous}) {
                search(find, text, button);
                EXPECT_EQ(listed(), u"Matthew 1 2"_s);
                EXPECT_EQ(position(), u"40:1:2"_s);
                EXPECT_EQ(find.Caption(), u"Simple Search of Verses"_s);
            }
        }
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
    expectReadingAgain();
}

TEST_F(SimpleFind, oddWordsFindNothing) {
    inWindow([this](frmSimpleFind& find) {
        for (const QString& text :
             {u"'grace'"_s, u"gr?ce"_s, u"gr#ce"_s, u"[g]race"_s, u"gr\\ace"_s, u"gr%ce"_s,
              u"gr_ce"_s, u"' or 1=1"_s, u"   "_s, u"благодать"_s, QString(5000, u'g')}) {
            expectNotFound(Answer::No);
            search(find, text);
            EXPECT_EQ(position(), u"1:1:1"_s);
        }
        press(find, Close);
    });
}

TEST_F(SimpleFind, isClosedByEscapeTitleBarAndButton) {
    for (const int way : {0, 1, 2}) {
        inWindow([way](frmSimpleFind& find) {
            search(find, u"begins"_s);
            if (way == 0)
                QTest::keyClick(&find.txtFind, Qt::Key_Escape);
            else if (way == 1)
                find.close();
            else
                QTest::mouseClick(&find.cmdFind(Close), Qt::LeftButton);
        });
        EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
        expectReadingAgain();
    }
}

TEST_F(SimpleFind, enterFindsTheNextAndOtherKeysTheirButtons) {
    inWindow([](frmSimpleFind& find) {
        QTest::keyClicks(&find.txtFind, u"grace"_s);
        QTest::keyClick(&find.txtFind, Qt::Key_Return);
        EXPECT_EQ(position(), u"1:1:2"_s);
        QTest::keyClick(&find.cmdFind(Next), Qt::Key_Return);
        QTest::keyClick(&find.cmdFind(Previous), Qt::Key_Return);
        EXPECT_EQ(position(), u"1:1:2"_s);
        press(find, Close);
    });
}

TEST_F(SimpleFind, closingEndsAQuery) {
    rsBible = dbBible.OpenRecordset(
        u"SELECT * FROM tblMain WHERE (((body like \"*peace*\")) )"_s, dbOpenDynaset);
    InQuery = On;
    QueryLock = On;
    window().enableLists(false);
    inWindow([](frmSimpleFind& find) {
        search(find, u"begins"_s);
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
    EXPECT_TRUE(window().cboBook.Enabled() && window().cmbTestament.Enabled());
    expectReadingAgain();
}

TEST_F(SimpleFind, onAHitThatTheListLacksTheBookFollows) {
    inWindow([](frmSimpleFind& find) {
        search(find, u"at last"_s);
        EXPECT_EQ(window().cboBook.Text() + window().cboChapter.Text(), u"Psalms119"_s);
        EXPECT_EQ(SettingCombos, Off);
        press(find, Close);
    });
}

TEST_F(SimpleFind, itsDeactivationClosesItOnTheDynaset) {
    inWindow([](frmSimpleFind& find) {
        search(find, u"begins"_s);
        find.Form_Deactivate();
    });
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
    EXPECT_THROW(rsBible.Seek(u"="_s, 1, 1, 1), std::exception);
}

TEST_F(SimpleFind, helpOpensItsTopic) {
    inWindow([this](frmSimpleFind& find) {
        find.cmdHelp.setValue(true);
        EXPECT_TRUE(desktop.shownHelp.constLast().endsWith(u" 12"_s));
        press(find, Close);
    });
}

TEST_F(SimpleFind, itsControlsSayWhatTheyAreFor) {
    inWindow([](frmSimpleFind& find) {
        EXPECT_EQ(find.fraMain.Caption(), u"Find what"_s);
        EXPECT_EQ(find.fraScope.Caption(), u"Scope of Search"_s);
        EXPECT_EQ(find.txtFind.ToolTipText(), u"Enter search word here."_s);
        EXPECT_EQ(find.chkMatchWholeWord.Caption(), u"Match Whole Word"_s);
        EXPECT_EQ(
            find.chkMatchWholeWord.ToolTipText(),
            u"Only the whole world will be searched. (Slower performance)"_s);
        EXPECT_EQ(find.cboTestament.List(0), u"Search Both New and Old"_s);
        EXPECT_EQ(find.cboTestament.List(1), u"Search Old Testament ONLY"_s);
        EXPECT_EQ(find.cboTestament.List(2), u"Search New Testament ONLY"_s);
        EXPECT_EQ(find.cboTestament.ToolTipText(), u"Search only the Old or New Testament."_s);
        EXPECT_EQ(find.cboBook.ToolTipText(), u"Search only a specific book"_s);
        EXPECT_EQ(find.cmdFind(Next).Caption(), u"Find &Next"_s);
        EXPECT_EQ(find.cmdFind(Previous).ToolTipText(), u"Find previous verse with this text"_s);
        EXPECT_EQ(find.cmdHelp.ToolTipText(), u"Tool Overview"_s);
        EXPECT_EQ(find.lblFindWhat(0).Caption(), u"Testament"_s);
        EXPECT_EQ(find.lblFindWhat(1).Caption(), QString());
        EXPECT_EQ(find.lblFindWhat(2).Caption(), u"Book"_s);
        press(find, Close);
    });
}
