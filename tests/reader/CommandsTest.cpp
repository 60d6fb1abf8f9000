#include "Configuration.h"
#include "controls/Handler.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "desktop/HostPath.h"
#include "reader/frmMain.h"
#include "settings/SettingsStore.h"
#include "support/ProgramFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Tip {
    int index;
    QStringView text;
};

constexpr Tip toolTips[] = {
    {0, u"Print"},
    {1, u"Bible Dictionary"},
    {2, u"View history of visited verses"},
    {3, u"Search your study notes"},
    {4, u"Advanced search"},
    {5, u"Query verses"},
    {6, u"End Query and return verses"},
    {7, u"Find previous"},
    {8, u"Find next"},
    {9, u"Change Options"},
    {10, u"Make an index"},
    {11, u"View notes report"},
    {12, u"Export verses to a text file"},
    {13, u"Cut text to clipboard"},
    {14, u"Copy text to clipboard"},
    {15, u"Paste"},
    {16, u"Open new Bible translation"},
    {17, u"Print Preview"},
    {18, u"Compare 2 Bibles"},
    {19, u"Bible Time Line"},
    {20, u"Topic Tracker"},
    {21, u"Red Letter Bible Tool"},
    {22, u"EMail this chapter to a friend"},
};

class Commands : public ProgramFixture {
protected:
    void SetUp() override {
        startProgram();
        QCoreApplication::processEvents();
        window().txtMain.SetFocus();
    }

    static frmMain& window() { return form<frmMain>(); }

    static void press(int button) { QTest::mouseClick(&window().cmdMain(button), Qt::LeftButton); }
};

} // namespace

TEST_F(Commands, twentyThreeButtonsHavePicturesAndToolTips) {
    int count = 0;
    for (const auto& [index, button] : window().cmdMain)
        count += button->icon().pixmap(24).isNull() ? 0 : 1;
    EXPECT_EQ(count, 23);
    ASSERT_EQ(std::size(toolTips), 23U);
    for (const Tip& tip : toolTips) {
        EXPECT_EQ(window().cmdMain(tip.index).ToolTipText(), tip.text);
        EXPECT_EQ(window().cmdMain(tip.index).accessibleName(), tip.text);
    }
}

TEST_F(Commands, everyButtonOfTheStripCanBeSeen) {
    for (const QSize size : {QSize(1100, 760), QSize(720, 480)}) {
        window().resize(size);
        QCoreApplication::processEvents();
        const QRect strip = window().pnlMain.rect();
        for (const auto& [index, button] : window().cmdMain) {
            const QRect place(button->mapTo(&window().pnlMain, QPoint()), button->size());
            EXPECT_TRUE(strip.contains(place)) << index << " at " << size.width();
        }
    }
}

TEST_F(Commands, theMouseOnAButtonShowsItsToolTipInTheTitle) {
    QTest::mouseMove(&window().cmdMain(16), QPoint(3, 3));
    window().cmdMain_MouseMove(16);
    EXPECT_EQ(
        window().Caption(), u"Lumenvia Professional King James ["_s + VerseReference()
                                + u"]: Open new Bible translation"_s);
    window().txtFind_MouseMove();
    EXPECT_EQ(
        window().Caption(), u"Lumenvia Professional King James ["_s + VerseReference() + u"]"_s);
    window().cmdComment_MouseMove();
    EXPECT_TRUE(window().Caption().endsWith(u"]: View a commentary on this chapter"_s));
}

TEST_F(Commands, copyGoesToThePageThatHadTheFocus) {
    window().txtMain.setSelStart(0);
    window().txtMain.setSelLength(7);
    press(14);
    EXPECT_EQ(QApplication::clipboard()->text(), u"Matthew"_s);
}

TEST_F(Commands, cutAndPasteGoToTheNoteThatHadTheFocus) {
    window().txtNote.SetFocus();
    QTest::keyClicks(&window().txtNote, u"move me"_s);
    const QVariant row = rsBible.Fields(0).Value();
    window().txtNote.selectAll();
    press(13);
    EXPECT_EQ(QApplication::clipboard()->text(), u"move me "_s);
    EXPECT_EQ(rsBible.Fields(5).Value(), u" "_s);
    press(15);
    EXPECT_EQ(rsBible.Fields(5).Value(), u"move me  "_s);
    EXPECT_EQ(rsBible.Fields(0).Value(), row);
}

TEST_F(Commands, pasteGoesToTheFindBoxThatHadTheFocus) {
    QApplication::clipboard()->setText(u"grace"_s);
    window().txtFind.SetFocus();
    window().cmdMain(15).setFocus();
    window().cmdMain(15).setValue(true);
    EXPECT_EQ(window().txtFind.Text(), u"grace"_s);
    EXPECT_TRUE(window().txtFind.hasFocus());
}

TEST_F(Commands, thePageCannotBeCutOrPastedInto) {
    EXPECT_FALSE(window().mnuedit(0).Enabled());
    EXPECT_FALSE(window().mnuedit(2).Enabled());
    window().txtNote.SetFocus();
    EXPECT_TRUE(window().mnuedit(0).Enabled());
    EXPECT_TRUE(window().mnuedit(2).Enabled());
    const QString text = window().txtMain.Text();
    window().txtMain.SetFocus();
    press(13);
    press(15);
    EXPECT_EQ(window().txtMain.Text(), text);
}

TEST_F(Commands, selectAllSelectsTheNoteOrThePage) {
    window().mnuedit(3).trigger();
    EXPECT_EQ(window().txtMain.SelLength(), window().txtMain.Text().size());
    window().txtNote.SetFocus();
    QTest::keyClicks(&window().txtNote, u"note"_s);
    window().mnuedit(3).trigger();
    EXPECT_EQ(window().txtNote.textCursor().selectedText(), u"note "_s);
}

TEST_F(Commands, hideNotesTurnsItsMarkAndTheHeadingStops) {
    window().mnuedit(5).trigger();
    EXPECT_EQ(HideNotes, On);
    EXPECT_TRUE(window().mnuedit(5).Checked());
    EXPECT_TRUE(window().txtNote.isVisible());
    window().mnuedit(5).trigger();
    EXPECT_EQ(HideNotes, Off);
    EXPECT_FALSE(window().mnuedit(5).Checked());
}

TEST_F(Commands, hideToolbarTurnsItsMarkAlone) {
    window().mnuedit(6).trigger();
    EXPECT_EQ(HideToolbar, On);
    EXPECT_TRUE(window().mnuedit(6).Checked());
    EXPECT_TRUE(window().pnlMain.isVisible());
}

TEST_F(Commands, endQueryWithoutAQueryChangesNothing) {
    const QString title = window().Caption();
    const QString place = position();
    press(6);
    window().mnuSearch(1).trigger();
    EXPECT_EQ(window().Caption(), title);
    EXPECT_EQ(position(), place);
}

TEST_F(Commands, endQueryReturnsToTheVerseThatTheListsShow) {
    rsBible.Seek(u"="_s, 40, 2, 5);
    window().showPlaceInLists();
    rsBible = dbBible.OpenRecordset(
        u"SELECT * FROM tblMain WHERE (((body like \"*:2:*\")) )"_s, dbOpenDynaset);
    InQuery = On;
    QueryLock = On;
    for (ComboBox* list : {&window().cboBook, &window().cboVerse, &window().cmbTestament})
        list->setEnabled(false);
    press(6);
    EXPECT_EQ(InQuery, Off);
    EXPECT_EQ(QueryLock, Off);
    EXPECT_TRUE(window().Caption().contains(u"[Matthew 2:5]"_s));
    EXPECT_TRUE(window().cboBook.Enabled());
    EXPECT_TRUE(window().cmbTestament.Enabled());
    EXPECT_NO_THROW(rsBible.Seek(u"="_s, 1, 1, 1)); // a table cursor again
}

TEST_F(Commands, helpContentsNeedsTheHelpFile) {
    desktop.expectMessage(
        {u"Unable to find Help file. Make sure it exists in "_s + programFolder(),
         u"Can't Find Help"_s, MessageIcon::Information});
    window().mnuHelp(0).trigger();
    QFile help(programFile(u"bible.hlp"_s));
    ASSERT_TRUE(help.open(QIODevice::WriteOnly));
    window().mnuHelp(0).trigger();
    EXPECT_EQ(desktop.shownHelp, QStringList{u"bible.hlp 0"_s});
}

TEST_F(Commands, webPagesOfTheMenusAreOpened) {
    const Message connected{
        u"Make sure you're connected to the Internet."_s, u"Lumenvia"_s, MessageIcon::Information};
    const std::pair<MenuItem*, QString> pages[] = {
        {&window().mnuHelp(6), u"/notified.htm"_s},
        {&window().mnuHelp(7), QString()},
        {&window().mnudownload(2), u"/order"_s}};
    for (const auto& [item, path] : pages) {
        desktop.expectMessage(connected);
        desktop.expectLink(configuration::HomeUrl + path);
        item->trigger();
    }
}

TEST_F(Commands, exitUnloadsTheWindowAndEndsTheProgram) {
    SaveSetting(QApplication::applicationName(), u"notified"_s, u"done"_s, u"yes"_s);
    desktop.expectEnd();
    window().mnufile(7).trigger();
    EXPECT_TRUE(programHasEnded());
}

TEST_F(Commands, aCommandWhoseWindowComesLaterIsSeenAndDisabled) {
    window().txtFind.SetFocus(); // where text can be cut and pasted
    for (const QString& name : comingCommands()) {
        auto* button = window().findChild<QWidget*>(name);
        auto* item = window().findChild<MenuItem*>(name);
        ASSERT_TRUE(button || item) << name.toStdString();
        EXPECT_FALSE(button ? button->isEnabled() : item->isEnabled()) << name.toStdString();
    }
    for (const ToolBarButton& button : toolBarButtons()) {
        const PictureButton& control = window().cmdMain(button.index);
        EXPECT_TRUE(control.isVisible()) << button.index;
        EXPECT_EQ(control.isEnabled(), !comingCommands().contains(control.objectName()));
    }
    for (const MenuItem* item : window().findChildren<MenuItem*>())
        EXPECT_EQ(item->isEnabled(), !comingCommands().contains(item->objectName()));
}

TEST_F(Commands, aRightClickShowsTheMenuWithTheWordUnderIt) {
    RichTextBox& page = window().txtMain;
    const auto rightClick = [&](int start, int length, const QString& word) {
        page.setSelStart(start);
        page.setSelLength(length);
        desktop.expectMenu([word](QMenu& menu) {
            EXPECT_EQ(menu.objectName(), u"mnuPopText"_s);
            EXPECT_EQ(PopupWord, word);
        });
        QTest::mouseClick(page.viewport(), Qt::RightButton, {}, QPoint(5, 5));
        EXPECT_EQ(PopupWord, QString());
    };
    rightClick(0, 0, {});
    rightClick(0, 7, u"Matthew"_s);
    rightClick(0, 8, u"Matthew"_s);   // "Matthew ", trimmed
    rightClick(0, 11, u"Matthew "_s); // two words: the first and its blank
}

TEST_F(Commands, theMenuKeyShowsTheMenuAndDrawsNothing) {
    const QString place = position();
    desktop.expectMenu({});
    QTest::keyClick(&window().txtMain, Qt::Key_Menu);
    desktop.expectMenu({});
    QTest::keyClick(&window().txtMain, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(position(), place);
}

TEST_F(Commands, thePopupCopiesWhatIsSelected) {
    desktop.expectMessage(
        {u"Please highlight some text first."_s, u"Can't Copy"_s, MessageIcon::Information});
    window().mnutext(1).trigger();
    window().txtMain.setSelStart(0);
    window().txtMain.setSelLength(7);
    window().mnutext(1).trigger();
    EXPECT_EQ(desktop.clipboard, u"Matthew"_s);
}

TEST_F(Commands, thePopupCopiesNothingWithTheFocusElsewhere) {
    window().txtNote.SetFocus();
    window().mnutext(1).trigger();
    EXPECT_EQ(desktop.clipboard, QString());
}

TEST_F(Commands, anOpenedMenuPutsThePlainTitleBack) {
    window().setKeyPreview(false);
    window().setCaption(u"something else"_s);
    window().mnuMain_Click();
    EXPECT_EQ(
        window().Caption(), u"Lumenvia Professional King James ["_s + VerseReference() + u"]"_s);
    EXPECT_TRUE(window().KeyPreview());
}
