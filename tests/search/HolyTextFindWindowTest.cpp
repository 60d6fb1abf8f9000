// The advanced search as a window: its marks on the page, its memory, its place and its keys.
#include "basic/Error.h"
#include "search/HolyTextFindFixture.h"

#include <QScreen>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class HolyTextFindWindow : public HolyTextFindFixture {
protected:
    // Whether a stretch of the page is marked, all of it and in all three ways.
    static bool isMarked(qsizetype start, qsizetype length) {
        RichTextBox& page = window().txtMain;
        for (qsizetype place = start; place < start + length; ++place) {
            page.setSelStart(static_cast<int>(place));
            page.setSelLength(1);
            if (page.SelColor() != QColor(0, 0, 255) || !page.SelBold() || !page.SelUnderline())
                return false;
        }
        return true;
    }
};

} // namespace

TEST_F(HolyTextFindWindow, marksEveryPlaceOfBothWordsWhateverTheirCase) {
    inWindow([](frmHolyTextFind& find) {
        find.chkMatchWholeWord.setValue(true);
        find.txtFind(1).setText(u"PEACE"_s);
        search(find, u"grace"_s);
        const QString text = window().txtMain.Text();
        for (const QString& word : {u"grace,"_s, u"peace."_s, u"grace to all"_s})
            EXPECT_TRUE(isMarked(text.indexOf(word), 5)) << word.toStdString();
        EXPECT_FALSE(isMarked(text.indexOf(u"and"_s), 3));
        EXPECT_EQ(QueryWords[0], u"grace"_s);
        EXPECT_EQ(QueryWords[1], u"PEACE"_s);
        EXPECT_TRUE(window().txtMain.Visible());
        press(find, Close);
    });
}

TEST_F(HolyTextFindWindow, marksFromThePagesSecondCharacterOn) {
    inWindow([](frmHolyTextFind& find) {
        find.txtFind(1).setText(u"G"_s);
        search(find, u"peace"_s);
        const QString text = window().txtMain.Text();
        ASSERT_TRUE(text.startsWith(u"Genesis 1:2"_s));
        EXPECT_FALSE(isMarked(0, 1));
        EXPECT_TRUE(isMarked(text.indexOf(u"grace"_s), 1));
        press(find, Close);
    });
}

TEST_F(HolyTextFindWindow, theViewStaysOnTheHit) {
    inWindow([](frmHolyTextFind& find) {
        search(find, u"grace"_s);
        EXPECT_LE(window().txtMain.SelStart(), 1);
        EXPECT_EQ(window().txtMain.SelLength(), 0);
        press(find, Close);
    });
}

TEST_F(HolyTextFindWindow, aPageThatCannotBeMarkedIsToldAndClosesTheWindow) {
    inWindow([this](frmHolyTextFind& find) {
        search(find, u"begins"_s);
        desktop.expectMessage(
            {u"Error in Text Search: \n\nout of ink"_s, u"Error"_s, MessageIcon::Information});
        find.textSearchFailed(Error(Error::InvalidPropertyValue, u"out of ink"_s));
    });
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
    expectReadingAgain();
}

TEST_F(HolyTextFindWindow, opensEmptyInANewRun) {
    inWindow([](frmHolyTextFind& find) {
        EXPECT_EQ(find.Caption(), u"Advanced Search of Verses"_s);
        EXPECT_EQ(find.txtFind(0).Text() + find.txtFind(1).Text(), QString());
        EXPECT_FALSE(find.optAndOr(0).Value());
        EXPECT_TRUE(find.optAndOr(1).Value());
        EXPECT_FALSE(find.chkMatchWholeWord.Value());
        EXPECT_EQ(find.cboTestament.ListIndex(), 0);
        EXPECT_EQ(find.cboBook.ListIndex(), 0);
        EXPECT_EQ(find.cboBook.List(0), u"All"_s);
        EXPECT_EQ(find.cboBook.List(66), u"Revelation"_s);
        EXPECT_EQ(SettingCombos, On);
        press(find, Close);
    });
    EXPECT_EQ(SettingCombos, Off);
}

TEST_F(HolyTextFindWindow, remembersWhatItLastHeld) {
    inWindow([](frmHolyTextFind& find) {
        find.txtFind(0).setText(u"one"_s);
        find.txtFind(1).setText(u"two"_s);
        find.cboBook.setListIndex(19);
        find.chkMatchWholeWord.setValue(true);
        find.optAndOr(0).setValue(true);
        press(find, Close);
    });
    inWindow([](frmHolyTextFind& find) {
        EXPECT_EQ(find.txtFind(0).Text(), u"one"_s);
        EXPECT_EQ(find.txtFind(1).Text(), u"two"_s);
        EXPECT_EQ(find.cboBook.ListIndex(), 19);
        EXPECT_TRUE(find.chkMatchWholeWord.Value());
        EXPECT_TRUE(find.optAndOr(0).Value());
        EXPECT_FALSE(find.optAndOr(1).Value());
        EXPECT_FALSE(find.Repositioned);
        find.cboTestament.setListIndex(2);
        press(find, Close);
    });
    inWindow([](frmHolyTextFind& find) {
        EXPECT_EQ(find.cboTestament.ListIndex(), 2);
        EXPECT_EQ(find.cboBook.ListIndex(), 0);
        EXPECT_FALSE(find.cboBook.Enabled());
        press(find, Close);
    });
}

TEST_F(HolyTextFindWindow, putsTheListOfTestamentsBack) {
    inWindow([](frmHolyTextFind& find) {
        EXPECT_EQ(find.SavedTestament, 0);
        find.SavedTestament = 1;
        press(find, Close);
    });
    EXPECT_EQ(window().cmbTestament.ListIndex(), 1);
}

TEST_F(HolyTextFindWindow, standsInTheLowerRightCorner) {
    inWindow([](frmHolyTextFind& find) {
        const QRect screen = find.screen()->geometry();
        EXPECT_EQ(find.x(), screen.width() - find.width() - twips(100));
        EXPECT_EQ(find.y(), screen.height() - twips(390) - find.height());
        press(find, Close);
    });
}

TEST_F(HolyTextFindWindow, theMouseShortensTheCaption) {
    inWindow([](frmHolyTextFind& find) {
        QTest::mouseMove(&find, QPoint(2, 2));
        find.Form_MouseMove();
        EXPECT_EQ(find.Caption(), u"Advanced Search"_s);
        search(find, u"grace"_s);
        EXPECT_EQ(find.Caption(), u"Advanced Search of Verses"_s);
        find.fraFind.MouseMove.raise(0, 0, 1, 1);
        EXPECT_EQ(find.Caption(), u"Advanced Search"_s);
        press(find, Close);
    });
}

TEST_F(HolyTextFindWindow, isClosedByEscapeAndTitleBar) {
    for (const bool byEscape : {true, false}) {
        inWindow([byEscape](frmHolyTextFind& find) {
            search(find, u"begins"_s);
            if (byEscape)
                QTest::keyClick(&find.txtFind(0), Qt::Key_Escape);
            else
                find.close();
        });
        EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
        expectReadingAgain();
        window().cboBook.setListIndex(0);
    }
}

TEST_F(HolyTextFindWindow, enterFindsTheNext) {
    inWindow([](frmHolyTextFind& find) {
        QTest::keyClicks(&find.txtFind(0), u"grace"_s);
        QTest::keyClick(&find.txtFind(0), Qt::Key_Return);
        QTest::keyClick(&find.txtFind(1), Qt::Key_Enter);
        EXPECT_EQ(position(), u"1:1:3"_s);
        press(find, Close);
    });
}

TEST_F(HolyTextFindWindow, hiddenButtonsOnlyRedrawThePage) {
    inWindow([](frmHolyTextFind& find) {
        EXPECT_FALSE(find.cmdHolyTextFind(First).isVisible());
        EXPECT_FALSE(find.cmdHolyTextFind(Query).isVisible());
        search(find, u"begins"_s);
        press(find, Query);
        press(find, First);
        EXPECT_EQ(position(), u"40:1:2"_s);
        EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
        press(find, Close);
    });
}

TEST_F(HolyTextFindWindow, theFocusGoesFromTopToBottom) {
    inWindow([](frmHolyTextFind& find) {
        QStringList order;
        QWidget* widget = &find.txtFind(0);
        for (int step = 0; step < 40; ++step, widget = widget->nextInFocusChain()) {
            if (widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus)
                && !order.contains(widget->objectName()))
                order.append(widget->objectName());
        }
        const QStringList expected = {
            u"txtFind(0)"_s,
            u"txtFind(1)"_s,
            u"optAndOr(0)"_s,
            u"optAndOr(1)"_s,
            u"cboTestament"_s,
            u"cboBook"_s,
            u"chkMatchWholeWord"_s,
            u"cmdHolyTextFind(3)"_s,
            u"cmdHolyTextFind(4)"_s,
            u"cmdHolyTextFind(1)"_s,
            u"cmdHelp"_s};
        EXPECT_EQ(order, expected);
        press(find, Close);
    });
}

TEST_F(HolyTextFindWindow, helpOpensItsTopic) {
    inWindow([this](frmHolyTextFind& find) {
        find.cmdHelp.setValue(true);
        EXPECT_TRUE(desktop.shownHelp.constLast().endsWith(u" 1720"_s));
        press(find, Close);
    });
}

TEST_F(HolyTextFindWindow, itsControlsSayWhatTheyAreFor) {
    inWindow([](frmHolyTextFind& find) {
        EXPECT_EQ(find.fraFind.Caption(), u"Enter text to look for"_s);
        EXPECT_EQ(find.Label1.Caption(), u"First Word"_s);
        EXPECT_EQ(find.Label2.Caption(), u"Second Word (Optional)"_s);
        EXPECT_EQ(find.txtFind(1).accessibleName(), u"Second Word (Optional)"_s);
        EXPECT_EQ(find.optAndOr(0).Caption(), u"Find verses with BOTH words"_s);
        EXPECT_EQ(find.optAndOr(1).Caption(), u"Find verses with EITHER words"_s);
        EXPECT_EQ(find.fraScope.Caption(), u"Scope of Search"_s);
        EXPECT_EQ(find.cboTestament.List(0), u"Choose a Book"_s);
        EXPECT_EQ(find.cboTestament.List(1), u"Search entire Old Testament ONLY"_s);
        EXPECT_EQ(find.cboTestament.List(2), u"Search entire New Testament ONLY"_s);
        EXPECT_EQ(find.chkMatchWholeWord.Caption(), u"Match Whole Word"_s);
        EXPECT_EQ(find.cmdHolyTextFind(First).ToolTipText(), u"Find First occurance of a word"_s);
        EXPECT_EQ(find.cmdHolyTextFind(Next).ToolTipText(), u"Find the next occurance"_s);
        EXPECT_EQ(find.cmdHolyTextFind(Previous).ToolTipText(), u"Find a previous occurance"_s);
        EXPECT_EQ(find.cmdHelp.ToolTipText(), u"Tool Overview"_s);
        EXPECT_EQ(find.lblFindWhat(2).Caption(), u"Book"_s);
        press(find, Close);
    });
}
