#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "reader/frmMain.h"
#include "settings/SettingsStore.h"
#include "store/StoreTuning.h"
#include "support/OtherProgram.h"
#include "support/ProgramFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class Notes : public ProgramFixture {
protected:
    void SetUp() override {
        // So that the cursor stands on Matthew 1:1 behind its page.
        SaveSetting(ApplicationName, SettingsSection, u"VersesPerPage"_s, u"24"_s);
        startProgram();
        QCoreApplication::processEvents();
        note().SetFocus();
    }

    static frmMain& window() { return form<frmMain>(); }
    static MultilineTextBox& note() { return window().txtNote; }

    static void type(const QString& text) { QTest::keyClicks(&note(), text); }

    static void selectAll() { QTest::keyClick(&note(), Qt::Key_A, Qt::ControlModifier); }

    // The note of a verse as it is in the file.
    static QVariant stored(int book = 40, int chapter = 1, int verse = 1) {
        Recordset rows = dbBible.OpenRecordset(u"tblMain"_s, dbOpenTable);
        rows.Index(u"VerseIndex"_s);
        rows.Seek(u"="_s, book, chapter, verse);
        return rows.Fields(5).Value();
    }

    static void show(int book, int chapter, int verse) {
        rsBible.Seek(u"="_s, book, chapter, verse);
        window().UpDateBibleText(true);
    }

    QString rescued() const {
        QFile file(programFile(u"unsaved notes.txt"_s));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
};

} // namespace

TEST_F(Notes, areWrittenOnEachReleaseOfAKey) {
    ASSERT_EQ(position(), u"40:1:1"_s);
    EXPECT_TRUE(stored().isNull());
    type(u"a"_s);
    EXPECT_EQ(stored(), u"a "_s);
    type(u"b"_s);
    EXPECT_EQ(stored(), u"ab "_s);
}

TEST_F(Notes, anErasedNoteIsOneBlank) {
    type(u"gone soon"_s);
    selectAll();
    QTest::keyClick(&note(), Qt::Key_Delete);
    EXPECT_EQ(stored(), u" "_s);
    EXPECT_EQ(note().Text(), u" "_s);
}

TEST_F(Notes, aNoteOfOneCharacterGetsABlankWithTheNextKey) {
    rsBible.Edit();
    rsBible.Fields(5) = u"x"_s;
    rsBible.Update();
    show(40, 1, 1);
    EXPECT_EQ(note().Text(), u"x "_s);
    EXPECT_EQ(stored(), u"x"_s);
    QTest::keyClick(&note(), Qt::Key_Right);
    EXPECT_EQ(stored(), u"x "_s);
}

TEST_F(Notes, unchangedTextIsNotWrittenAgain) {
    type(u"same"_s);
    QFile file(programFile(u"KJV.mdb"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    QTest::keyClick(&note(), Qt::Key_Shift);
    QTest::keyClick(&note(), Qt::Key_Left);
    QTest::keyClick(&note(), Qt::Key_Up);
    file.seek(0);
    EXPECT_EQ(file.readAll(), before);
}

TEST_F(Notes, ctrlASelectsTheWholeNote) {
    type(u"all of it"_s);
    selectAll();
    EXPECT_EQ(note().textCursor().selectedText(), u"all of it "_s);
    EXPECT_EQ(note().Text(), u"all of it "_s);
}

TEST_F(Notes, keepArrowAndPageKeys) {
    EXPECT_FALSE(window().KeyPreview());
    const QString title = window().Caption();
    QTest::keyClick(&note(), Qt::Key_PageDown);
    QTest::keyClick(&note(), Qt::Key_Down);
    EXPECT_EQ(window().Caption(), title);
    window().txtMain.SetFocus();
    EXPECT_TRUE(window().KeyPreview());
    EXPECT_FALSE(window().NoteHasFocus);
}

TEST_F(Notes, holdAnyCharacter) {
    const QString text = u"\"quoted\", 'single'; \u00e9 \u6f22 \u05d0\u05d1 {\\rtf} 100% _ "_s
                         + QString::fromUcs4(U"\U0001F64F");
    QApplication::clipboard()->setText(text + u"\ttab\nline"_s);
    selectAll();
    QTest::keyClick(&note(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(stored(), text + u"\ttab\nline"_s);
    show(40, 1, 1);
    EXPECT_EQ(note().Text(), text + u"\ttab\nline"_s);
}

TEST_F(Notes, mayBeAMegabyte) {
    const QString text = QString(u"a long note. "_s).repeated(80'000);
    QApplication::clipboard()->setText(text);
    selectAll();
    QTest::keyClick(&note(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(stored().toString().size(), text.size());
    type(u"!"_s);
    EXPECT_EQ(stored().toString().size(), text.size() + 1);
}

TEST_F(Notes, textThatComesWithoutAKeyIsWrittenToo) {
    QApplication::clipboard()->setText(u"by the mouse"_s);
    note().selectAll();
    note().paste();
    EXPECT_EQ(stored(), u"by the mouse"_s);
}

TEST_F(Notes, aKeyThatIsReleasedElsewhereLosesNothing) {
    QTest::keyPress(&note(), Qt::Key_Z);
    EXPECT_TRUE(stored().isNull());
    window().txtFind.SetFocus();
    EXPECT_EQ(stored(), u"z "_s);
}

TEST_F(Notes, belongToTheRowThatFilledThePane) {
    type(u"first"_s);
    rsBible.MoveNext(); // some tool has moved the cursor
    QTest::keyPress(&note(), Qt::Key_X);
    QTest::keyRelease(&note(), Qt::Key_X);
    EXPECT_TRUE(stored(40, 1, 2).isNull());
    EXPECT_EQ(stored(40, 1, 1), u"firstx "_s);
    EXPECT_EQ(note().Text(), u" "_s); // the pane now shows the cursor's own
    type(u"second"_s);
    EXPECT_EQ(stored(40, 1, 2), u"second "_s);
    EXPECT_EQ(stored(40, 1, 1), u"firstx "_s);
}

TEST_F(Notes, thePaneIsRefilledWhenItGetsTheFocusOnAnotherRow) {
    type(u"first"_s);
    window().txtFind.SetFocus();
    rsBible.MoveNext();
    note().SetFocus();
    EXPECT_EQ(note().Text(), u" "_s);
    EXPECT_TRUE(stored(40, 1, 2).isNull());
}

TEST_F(Notes, followTheCursorOfAQuery) {
    rsBible = dbBible.OpenRecordset(
        u"SELECT * FROM tblMain WHERE (((body like \"*40:1:2*\")) )"_s, dbOpenDynaset);
    InQuery = On;
    window().UpDateBibleText(true);
    note().SetFocus();
    const QString place = position();
    type(u"hit"_s);
    InQuery = Off;
    const QStringList parts = place.split(u':');
    EXPECT_EQ(stored(parts[0].toInt(), parts[1].toInt(), parts[2].toInt()), u"hit "_s);
}

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

TEST_F(Notes, showTheirVerseAboveThem) {
    show(40, 2, 3);
    EXPECT_EQ(window().lblCurrentNote.Caption(), u"Your note for: Matthew 2:3"_s);
}
