// The simple search as a window: its lists, its place and its keys.
#include "search/FocusOrder.h"
#include "search/SimpleFindFixture.h"

#include <QScreen>
#include <QTest>

namespace {

class SimpleFindWindow : public SimpleFindFixture {};

} // namespace

TEST_F(SimpleFindWindow, opensWithTheFindBarsWordSelected) {
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

TEST_F(SimpleFindWindow, aTestamentLeavesNoChoiceOfABook) {
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

TEST_F(SimpleFindWindow, aBookSetsTheTestamentBackWhoseChangeDropsTheBook) {
    inWindow([](frmSimpleFind& find) {
        find.cboTestament.setListIndex(1);
        find.cboBook.setListIndex(3);
        EXPECT_EQ(find.cboTestament.ListIndex(), 0);
        EXPECT_EQ(find.cboBook.ListIndex(), 0);
        EXPECT_TRUE(find.cboBook.Enabled());
        press(find, Close);
    });
}

TEST_F(SimpleFindWindow, standsInTheLowerRightCorner) {
    inWindow([](frmSimpleFind& find) {
        const QRect screen = find.screen()->geometry();
        EXPECT_EQ(find.x(), screen.width() - find.width() - twips(100));
        EXPECT_EQ(find.y(), screen.height() - twips(390) - find.height());
        press(find, Close);
    });
}

TEST_F(SimpleFindWindow, isClosedByEscapeTitleBarAndButton) {
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

TEST_F(SimpleFindWindow, enterFindsTheNextAndOtherKeysTheirButtons) {
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

TEST_F(SimpleFindWindow, itsDeactivationClosesItOnTheDynaset) {
    inWindow([](frmSimpleFind& find) {
        search(find, u"begins"_s);
        find.Form_Deactivate();
    });
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
    EXPECT_THROW(rsBible.Seek(u"="_s, 1, 1, 1), std::exception);
}

TEST_F(SimpleFindWindow, theFocusGoesFromTopToBottom) {
    inWindow([](frmSimpleFind& find) {
        EXPECT_EQ(firstFocus(find), u"txtFind"_s);
        EXPECT_EQ(
            focusOrder(find.txtFind),
            (QStringList{
                u"txtFind"_s, u"chkMatchWholeWord"_s, u"cboTestament"_s, u"cboBook"_s,
                u"cmdFind(1)"_s, u"cmdFind(2)"_s, u"cmdFind(3)"_s, u"cmdHelp"_s}));
        press(find, Close);
    });
}

TEST_F(SimpleFindWindow, opensByItsKey) {
    window().activateWindow();
    desktop.expectWindow([](QWidget& opened) {
        EXPECT_EQ(opened.objectName(), u"frmSimpleFind"_s);
        press(static_cast<frmSimpleFind&>(opened), Close);
    });
    QTest::keyClick(&window(), Qt::Key_F6);
}

TEST_F(SimpleFindWindow, helpOpensItsTopic) {
    inWindow([this](frmSimpleFind& find) {
        find.cmdHelp.setValue(true);
        EXPECT_TRUE(desktop.shownHelp.constLast().endsWith(u" 12"_s));
        press(find, Close);
    });
}

TEST_F(SimpleFindWindow, itsControlsSayWhatTheyAreFor) {
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
        EXPECT_EQ(find.lblFindWhat(0).Caption(), u"Testament"_s);
        EXPECT_EQ(find.lblFindWhat(1).Caption(), QString());
        EXPECT_EQ(find.lblFindWhat(2).Caption(), u"Book"_s);
        press(find, Close);
    });
}

TEST_F(SimpleFindWindow, itsButtonsSayWhatTheyDo) {
    inWindow([](frmSimpleFind& find) {
        const std::pair<QString, QString> texts[] = {
            {u"&Find First"_s, u"Find first verse with this text"_s},
            {u"Find &Next"_s, u"Find next verse with this text"_s},
            {u"Find &Previous"_s, u"Find previous verse with this text"_s},
            {u"&Close"_s, QString()}};
        for (int button = First; button <= Close; ++button) {
            EXPECT_EQ(find.cmdFind(button).Caption(), texts[button].first);
            EXPECT_EQ(find.cmdFind(button).ToolTipText(), texts[button].second);
        }
        EXPECT_EQ(find.cmdHelp.ToolTipText(), u"Tool Overview"_s);
        press(find, Close);
    });
}
