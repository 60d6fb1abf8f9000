// No note is lost, and none lands on another verse.
#include "reader/NotesFixture.h"
#include "store/StoreTuning.h"
#include "support/OtherProgram.h"

#include <QApplication>

TEST_F(Notes, ofAReadOnlyFileAreRescuedInSilence) {
    QFile::setPermissions(programFile(u"KJV.mdb"_s), QFileDevice::ReadOwner);
    wsBible = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
    dbBible = wsBible.OpenDatabase(programFile(u"KJV.mdb"_s), OpenMode::ReadOnly);
    rsBible = dbBible.OpenRecordset(u"tblMain"_s, dbOpenTable);
    rsBible.Index(u"VerseIndex"_s);
    show(40, 1, 1);
    type(u"no place for me"_s);
    EXPECT_EQ(rescued(), QString());
    EXPECT_EQ(note().Text(), u"no place for me "_s);
    show(40, 2, 1);
    EXPECT_TRUE(rescued().contains(u"Matthew 1:1\nno place for me \n"_s))
        << rescued().toStdString();
    EXPECT_TRUE(stored().isNull());
}

TEST_F(Notes, ofAFileThatIsGoneAreRescued) {
    type(u"a"_s);
    ASSERT_TRUE(QFile::remove(programFile(u"KJV.mdb"_s)));
    type(u"b"_s);
    show(40, 2, 1);
    EXPECT_TRUE(rescued().contains(u"Matthew 1:1\nab \n"_s)) << rescued().toStdString();
}

TEST_F(Notes, ofAFileThatIsReplacedAreRescued) {
    type(u"a"_s);
    addTranslation(u"KJV.mdb"_s, sampleVerses());
    type(u"b"_s);
    show(40, 2, 1);
    EXPECT_TRUE(rescued().contains(u"Matthew 1:1\nab \n"_s)) << rescued().toStdString();
}

class LockedNotes : public Notes {
protected:
    LockedNotes() { storeTuning().busyTimeout = std::chrono::milliseconds(20); }
    ~LockedNotes() override { storeTuning() = {}; }
};

TEST_F(LockedNotes, areWrittenWithTheNextKeyThatCan) {
    {
        OtherProgram holder(
            QStringLiteral(LUMENVIA_STORE_HELPER), {u"lock"_s, programFile(u"KJV.mdb"_s)});
        ASSERT_EQ(holder.readLine(), u"locked"_s);
        type(u"ab"_s);
        EXPECT_EQ(note().Text(), u"ab "_s);
    }
    EXPECT_TRUE(stored().isNull());
    type(u"c"_s);
    EXPECT_EQ(stored(), u"abc "_s);
    EXPECT_TRUE(rescued().isEmpty());
}

TEST_F(LockedNotes, areNotTakenForSavedWhenTheFocusIsLeft) {
    {
        OtherProgram holder(
            QStringLiteral(LUMENVIA_STORE_HELPER), {u"lock"_s, programFile(u"KJV.mdb"_s)});
        ASSERT_EQ(holder.readLine(), u"locked"_s);
        type(u"a"_s);
        QTest::keyClick(&note(), Qt::Key_Shift);
        window().txtFind.SetFocus();
    }
    EXPECT_TRUE(stored().isNull());
    show(40, 2, 1);
    EXPECT_EQ(stored(), u"a "_s);
}

TEST_F(LockedNotes, aRowThatCannotBeReadForAMomentKeepsItsPane) {
    {
        Workspace workspace = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
        Recordset rows = workspace.OpenDatabase(programFile(u"KJV.mdb"_s))
                             .OpenRecordset(u"tblMain"_s, dbOpenTable);
        rows.MoveLast();
        rows.Edit();
        rows.Fields(5) = u"written by another"_s; // so that every row is read anew
        rows.Update();
        OtherProgram holder(
            QStringLiteral(LUMENVIA_STORE_HELPER), {u"lock"_s, programFile(u"KJV.mdb"_s)});
        ASSERT_EQ(holder.readLine(), u"locked"_s);
        type(u"ab"_s);
        EXPECT_EQ(note().Text(), u"ab "_s);
    }
    type(u"c"_s);
    EXPECT_EQ(stored(), u"abc "_s);
    EXPECT_TRUE(rescued().isEmpty());
}

TEST_F(Notes, keepTheKeysAfterAMenuWasOpened) {
    window().mnuMain_Click();
    EXPECT_TRUE(window().KeyPreview());
    type(u"ab"_s);
    EXPECT_EQ(note().Text(), u"ab "_s);
    EXPECT_EQ(stored(), u"ab "_s);
    EXPECT_TRUE(note().hasFocus());
}

TEST_F(Notes, nothingOfAnotherVerseCanBeUndone) {
    type(u"ab"_s);
    QTest::keyClick(&note(), Qt::Key_Backspace);
    QTest::keyClick(&note(), Qt::Key_Backspace);
    EXPECT_EQ(note().Text(), u" "_s);
    rsBible.MoveNext();
    note().clearFocus();
    window().txtFind.SetFocus();
    note().SetFocus();
    QTest::keyClick(&note(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(note().Text(), u" "_s);
}

TEST_F(Notes, anIdlePaneTakesWhatAnotherProgramHasWritten) {
    Workspace workspace = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
    Recordset rows =
        workspace.OpenDatabase(programFile(u"KJV.mdb"_s)).OpenRecordset(u"tblMain"_s, dbOpenTable);
    rows.Index(u"VerseIndex"_s);
    rows.Seek(u"="_s, 40, 1, 1);
    rows.Edit();
    rows.Fields(5) = u"newer"_s;
    rows.Update();
    QTest::keyClick(&note(), Qt::Key_Right);
    EXPECT_EQ(stored(), u"newer"_s);
    EXPECT_EQ(note().Text(), u"newer"_s);
}

TEST_F(Notes, erasedAreOneBlankAlsoWithoutTheReleaseOfTheKey) {
    type(u"gone soon"_s);
    selectAll();
    QTest::keyPress(&note(), Qt::Key_Delete);
    show(40, 2, 1);
    EXPECT_EQ(stored(), u" "_s);
}

TEST_F(Notes, followACursorThatAToolWindowHasMoved) {
    rsBible.Edit();
    rsBible.Fields(5) = u"the first"_s;
    rsBible.Update();
    show(40, 1, 1);
    rsBible.MoveNext();
    QEvent activation(QEvent::ActivationChange);
    QApplication::sendEvent(&window(), &activation);
    EXPECT_EQ(note().Text(), u" "_s);
}

TEST_F(Notes, pendingAreWrittenWhenTheWindowCloses) {
    SaveSetting(QCoreApplication::applicationName(), u"notified"_s, u"done"_s, u"yes"_s);
    QTest::keyPress(&note(), Qt::Key_Z);
    EXPECT_TRUE(stored().isNull());
    desktop.expectEnd();
    window().close();
    EXPECT_EQ(stored(), u"z "_s);
}

TEST_F(Notes, pendingAreWrittenWhenAnotherWindowTakesTheKeyboard) {
    QTest::keyPress(&note(), Qt::Key_Z);
    QWidget other;
    other.show();
    other.activateWindow();
    QCoreApplication::processEvents();
    ASSERT_FALSE(window().isActiveWindow());
    EXPECT_EQ(stored(), u"z "_s);
}

TEST_F(Notes, keepBlanksThatDoNotBreak) {
    rsBible.Edit();
    rsBible.Fields(5) = u"a\u00a0b"_s;
    rsBible.Update();
    show(40, 1, 1);
    type(u"x"_s);
    EXPECT_EQ(stored(), u"xa\u00a0b"_s);
}
