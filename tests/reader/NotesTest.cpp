// What the note pane does with keys and texts.
#include "reader/NotesFixture.h"

#include <QApplication>
#include <QClipboard>

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

TEST_F(Notes, showTheirVerseAboveThem) {
    show(40, 2, 3);
    EXPECT_EQ(window().lblCurrentNote.Caption(), u"Your note for: Matthew 2:3"_s);
}
