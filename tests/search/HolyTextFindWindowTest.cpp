// The advanced search as a window: its marks on the page, its memory, its place and its keys.
#include "basic/Error.h"
#include "search/FocusOrder.h"
#include "search/HolyTextFindFixture.h"

#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

class HolyTextFindWindow : public HolyTextFindFixture {
protected:
    static void moveMouseOver(QWidget& widget) {
        QMouseEvent move(
            QEvent::MouseMove, QPointF(2, 2), widget.mapToGlobal(QPointF(2, 2)), Qt::NoButton,
            Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &move);
    }

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

// Fails once, at the first wait pointer over the page of a verse: there the marking starts.
class FailingMarks final : public QObject {
public:
    explicit FailingMarks(QString verse)
        : m_verse(std::move(verse)) {}

    bool eventFilter(QObject* window, QEvent* event) override {
        if (event->type() == QEvent::CursorChange
            && static_cast<QWidget*>(window)->cursor().shape() == Qt::WaitCursor
            && form<frmMain>().txtMain.Text().startsWith(m_verse) && !std::exchange(m_failed, true))
            throw Error(Error::InvalidPropertyValue, u"out of ink"_s);
        return false;
    }

private:
    QString m_verse;
    bool m_failed = false;
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
    Verses verses = sampleVerses();
    const auto psalm = std::ranges::find(verses, 19, &Verse::book);
    for (const int verse : {2, 175, 176})
        psalm[verse - 1].body = u"Of grace."_s;
    startOn(verses);
    inWindow([](frmHolyTextFind& find) {
        search(find, u"grace"_s);
        const RichTextBox& page = window().txtMain;
        EXPECT_EQ(pageTop(), u"Psalms 119:2 Of grace."_s);
        EXPECT_TRUE(isMarked(page.Text().lastIndexOf(u"grace"_s), 5));
        press(find, Next);
        press(find, Previous);
        ASSERT_GT(page.verticalScrollBar()->maximum(), 0);
        EXPECT_EQ(page.verticalScrollBar()->value(), 0);
        EXPECT_LE(page.SelStart(), 1);
        EXPECT_EQ(page.SelLength(), 0);
        press(find, Close);
    });
}

TEST_F(HolyTextFindWindow, aPageThatCannotBeMarkedIsToldAndClosesTheWindow) {
    inWindow([this](frmHolyTextFind& find) {
        FailingMarks marks(u"Matthew 1:2"_s);
        find.installEventFilter(&marks);
        QString page;
        desktop.expectMessage(
            {u"Error in Text Search: \n\nout of ink"_s, u"Error"_s, MessageIcon::Information},
            Answer::Ok, [&] { page = pageTop(); });
        search(find, u"begins"_s);
        EXPECT_EQ(page, u"Matthew 1:2 grace begins this one."_s);
        EXPECT_FALSE(isLoaded<frmHolyTextFind>());
    });
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
    expectReadingAgain();
}

TEST_F(HolyTextFindWindow, aPageThatCannotBeMarkedEndsAQueryToo) {
    beInQuery(u"peace"_s);
    inWindow([this](frmHolyTextFind& find) {
        FailingMarks marks(u"Matthew 1:2"_s);
        find.installEventFilter(&marks);
        desktop.expectMessage(
            {u"Error in Text Search: \n\nout of ink"_s, u"Error"_s, MessageIcon::Information});
        search(find, u"begins"_s);
    });
    EXPECT_TRUE(window().cboBook.Enabled() && window().cboChapter.Enabled());
    EXPECT_TRUE(window().cboVerse.Enabled() && window().cmbTestament.Enabled());
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

TEST_F(HolyTextFindWindow, remembersWhatItHeldWhenItAskedForAWord) {
    inWindow([this](frmHolyTextFind& find) {
        find.txtFind(1).setText(u"two"_s);
        find.cboBook.setListIndex(19);
        find.optAndOr(0).setValue(true);
        desktop.expectMessage(
            {u"Please enter some text to search for."_s, u"Need Text"_s, MessageIcon::Information});
        press(find, Next);
        EXPECT_EQ(OldSearchWords[1], u"two"_s);
        EXPECT_EQ(OldSearchBook, 19);
        EXPECT_TRUE(OldSearchBoth);
        press(find, Close);
    });
    inWindow([](frmHolyTextFind& find) {
        EXPECT_EQ(find.txtFind(0).Text(), QString());
        EXPECT_EQ(find.txtFind(1).Text(), u"two"_s);
        EXPECT_EQ(find.cboBook.ListIndex(), 19);
        press(find, Close);
    });
}

TEST_F(HolyTextFindWindow, putsTheListOfTestamentsBack) {
    window().cmbTestament.setListIndex(1);
    inWindow([](frmHolyTextFind& find) {
        window().cmbTestament.setListIndex(2);
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
        moveMouseOver(find);
        EXPECT_EQ(find.Caption(), u"Advanced Search"_s);
        search(find, u"grace"_s);
        EXPECT_EQ(find.Caption(), u"Advanced Search of Verses"_s);
        moveMouseOver(find.fraFind);
        EXPECT_EQ(find.Caption(), u"Advanced Search"_s);
        search(find, u"grace"_s);
        moveMouseOver(find.cmdHolyTextFind(Next));
        EXPECT_EQ(find.Caption(), u"Advanced Search of Verses"_s);
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
        search(find, u"begins"_s);
        for (const Press button : {Query, First}) {
            EXPECT_FALSE(find.cmdHolyTextFind(button).isVisible());
            window().txtMain.setText(u"another page"_s);
            press(find, button);
            EXPECT_EQ(position(), u"40:1:2"_s);
            EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
            EXPECT_TRUE(isMarked(window().txtMain.Text().indexOf(u"begins"_s), 6));
        }
        press(find, Close);
    });
}

TEST_F(HolyTextFindWindow, hiddenFindFirstMovesToAFreshScope) {
    rsBible.Seek(u"="_s, 2, 1, 1);
    inWindow([](frmHolyTextFind& find) {
        find.cboTestament.setListIndex(2);
        search(find, u"begins"_s, First);
        EXPECT_EQ(position(), u"40:1:1"_s);
        EXPECT_EQ(pageTop(), u"Matthew 1:1 The grace of the book."_s);
        EXPECT_TRUE(find.Repositioned);
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Exodus 1:1 Peace with grace?"_s);
}

TEST_F(HolyTextFindWindow, hiddenQueryNeedsNoWordAndNoScope) {
    inWindow([](frmHolyTextFind& find) {
        find.cboTestament.setListIndex(2);
        window().txtMain.setText(u"another page"_s);
        press(find, Query);
        EXPECT_EQ(find.SearchSQL, u" ((( body like \"**\"))) AND ((book > 39))"_s);
        EXPECT_FALSE(find.Repositioned);
        EXPECT_EQ(pageTop(), u"Genesis 1:1 In the beginning grace was there."_s);
        EXPECT_EQ(find.Caption(), u"Advanced Search of Verses"_s);
        press(find, Close);
    });
}

TEST_F(HolyTextFindWindow, theFocusGoesFromTopToBottom) {
    inWindow([](frmHolyTextFind& find) {
        EXPECT_EQ(firstFocus(find), u"txtFind(0)"_s);
        EXPECT_EQ(
            focusOrder(find.txtFind(0)),
            (QStringList{
                u"txtFind(0)"_s, u"txtFind(1)"_s, u"optAndOr(0)"_s, u"optAndOr(1)"_s,
                u"cboTestament"_s, u"cboBook"_s, u"chkMatchWholeWord"_s, u"cmdHolyTextFind(3)"_s,
                u"cmdHolyTextFind(4)"_s, u"cmdHolyTextFind(1)"_s, u"cmdHelp"_s}));
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
        EXPECT_EQ(find.txtFind(0).accessibleName(), u"First Word"_s);
        EXPECT_EQ(find.txtFind(1).accessibleName(), u"Second Word (Optional)"_s);
        EXPECT_EQ(find.optAndOr(0).Caption(), u"Find verses with BOTH words"_s);
        EXPECT_EQ(find.optAndOr(1).Caption(), u"Find verses with EITHER words"_s);
        EXPECT_EQ(find.fraScope.Caption(), u"Scope of Search"_s);
        EXPECT_EQ(find.cboTestament.List(0), u"Choose a Book"_s);
        EXPECT_EQ(find.cboTestament.List(1), u"Search entire Old Testament ONLY"_s);
        EXPECT_EQ(find.cboTestament.List(2), u"Search entire New Testament ONLY"_s);
        EXPECT_EQ(find.cboTestament.ListCount(), 3);
        EXPECT_EQ(find.chkMatchWholeWord.Caption(), u"Match Whole Word"_s);
        EXPECT_EQ(find.lblFindWhat(0).Caption(), u"Testament"_s);
        EXPECT_EQ(find.lblFindWhat(1).Caption(), QString());
        EXPECT_EQ(find.lblFindWhat(2).Caption(), u"Book"_s);
        press(find, Close);
    });
}

TEST_F(HolyTextFindWindow, itsButtonsSayWhatTheyDo) {
    inWindow([](frmHolyTextFind& find) {
        const std::pair<QString, QString> texts[] = {
            {u"&Find First"_s, u"Find First occurance of a word"_s},
            {u"&Close"_s, QString()},
            {u"&Query"_s, QString()},
            {u"Find &Next"_s, u"Find the next occurance"_s},
            {u"Find &Previous"_s, u"Find a previous occurance"_s}};
        for (int button = First; button <= Previous; ++button) {
            EXPECT_EQ(find.cmdHolyTextFind(button).Caption(), texts[button].first);
            EXPECT_EQ(find.cmdHolyTextFind(button).ToolTipText(), texts[button].second);
        }
        EXPECT_EQ(find.cmdHelp.ToolTipText(), u"Tool Overview"_s);
        press(find, Close);
    });
}
