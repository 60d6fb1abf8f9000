// Switching the translation while the program runs.
#include "core/Catalogue.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "prefs/frmDownload.h"
#include "reader/frmMain.h"
#include "support/ProgramFixture.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class Switch : public ProgramFixture {
protected:
    void SetUp() override {
        addTranslation(u"KJV.mdb"_s, sampleVerses());
        Verses french = sampleVerses();
        for (Verse& verse : french)
            verse.body.prepend(u"Fr "_s);
        addTranslation(u"French.mdb"_s, french);
        startProgram();
        QCoreApplication::processEvents();
    }

    static frmMain& window() { return form<frmMain>(); }
};

} // namespace

TEST_F(Switch, opensTheOtherTextAtItsFirstVerse) {
    window().mnubible(9).trigger();
    EXPECT_TRUE(window().txtMain.Text().contains(u"Fr Verse 1:1:1."_s));
    EXPECT_EQ(CurrentBible, 9);
    EXPECT_EQ(BootUpBible, 9);
    EXPECT_EQ(
        window().Caption(),
        u"Lumenvia Professional Français (French LSG) ["_s + VerseReference() + u"]"_s);
    EXPECT_EQ(position(), u"1:1:1"_s);
}

TEST_F(Switch, showsTheFirstRowForEverySizeOfPage) {
    for (const int size : {0, 5, 30, 31, 200}) {
        VersesPerPage = static_cast<qint16>(size);
        window().loadNewBible(9);
        EXPECT_TRUE(window().txtMain.Text().startsWith(u"Genèse 1:1 "_s)) << size;
    }
}

TEST_F(Switch, changesTheListOfBooksAndLeavesTheTree) {
    window().loadNewBible(9);
    EXPECT_EQ(window().cboBook.List(0), u"Genèse"_s);
    EXPECT_EQ(window().cboBook.ListIndex(), 0);
    EXPECT_EQ(window().cboChapter.ListIndex(), 0);
    EXPECT_EQ(window().cboVerse.ListIndex(), 0);
    EXPECT_EQ(window().cmbTestament.ListIndex(), 0);
    EXPECT_EQ(window().tree.node(u"X1"_s)->text(0), u"Genesis"_s);
}

TEST_F(Switch, marksTheTranslationInTheMenu) {
    window().loadNewBible(9);
    EXPECT_TRUE(window().mnubible(9).Checked());
    window().loadNewBible(2);
    EXPECT_FALSE(window().mnubible(9).Checked());
    EXPECT_TRUE(window().mnubible(2).Checked());
}

TEST_F(Switch, toAMissingFileShowsTheDownloadWindowOnIt) {
    const QString title = window().Caption();
    window().mnubible(5).trigger();
    EXPECT_TRUE(isLoaded<frmDownload>());
    EXPECT_EQ(DownloadItem, 5);
    EXPECT_EQ(form<frmDownload>().cboDownload.ListIndex(), 5);
    EXPECT_EQ(CurrentBible, 2);
    EXPECT_EQ(window().Caption(), title);
}

TEST_F(Switch, endsAQueryFirst) {
    rsBible = dbBible.OpenRecordset(
        u"SELECT * FROM tblMain WHERE (((body like \"*:2:*\")) )"_s, dbOpenDynaset);
    InQuery = On;
    QueryLock = On;
    window().mnubible(9).trigger();
    EXPECT_EQ(InQuery, Off);
    EXPECT_EQ(QueryLock, Off);
    EXPECT_NO_THROW(rsBible.Seek(u"="_s, 40, 1, 1));
}

TEST_F(Switch, toADamagedFileLeavesACursorThatFails) {
    QFile damaged(programFile(u"YLT.mdb"_s));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("no data file");
    damaged.close();
    window().loadNewBible(6);
    EXPECT_EQ(position(), u"none"_s);
    EXPECT_EQ(window().txtMain.Text(), QString());
    EXPECT_EQ(window().Caption(), u"Lumenvia Professional YLT []"_s);
    window().loadNewBible(2);
    EXPECT_EQ(position(), u"1:1:1"_s);
}

TEST_F(Switch, keepsTheNotesOfEachTranslation) {
    VersesPerPage = 30;
    window().loadNewBible(2);
    window().txtNote.SetFocus();
    QTest::keyClicks(&window().txtNote, u"in English"_s);
    window().loadNewBible(9);
    EXPECT_EQ(window().txtNote.Text(), u" "_s);
    window().txtNote.SetFocus();
    QTest::keyClicks(&window().txtNote, u"en francais"_s);
    window().loadNewBible(2);
    EXPECT_EQ(window().txtNote.Text(), u"in English "_s);
}

TEST_F(Switch, writesWhatWasTypedToTheOldTranslation) {
    VersesPerPage = 30;
    window().loadNewBible(2);
    window().txtNote.SetFocus();
    QTest::keyPress(&window().txtNote, Qt::Key_Q); // not released before the switch
    window().loadNewBible(9);
    EXPECT_TRUE(rsBible.Fields(5).Value().isNull());
    window().loadNewBible(2);
    EXPECT_EQ(rsBible.Fields(5).Value(), u"q "_s);
}

TEST_F(Switch, leavesTheFlagsDown) {
    window().loadNewBible(9);
    for (const Flag flag :
         {StartingUp, HoldUpdates, SkipComboClick, QueryLock, SettingCombos, InQuery})
        EXPECT_EQ(flag, Off);
}
