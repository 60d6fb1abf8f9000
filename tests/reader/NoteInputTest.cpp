// Every way in which text can come into the pane, and every way in which the pane can be left.
#include "reader/NotesFixture.h"

#include <QApplication>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>

TEST_F(Notes, takeWhatAnInputMethodComposes) {
    QInputMethodEvent composing(u"かん"_s, {});
    QApplication::sendEvent(&note(), &composing);
    EXPECT_TRUE(stored().isNull()) << "what is not chosen yet is no text";
    QInputMethodEvent chosen;
    chosen.setCommitString(u"漢字"_s);
    QApplication::sendEvent(&note(), &chosen);
    EXPECT_EQ(stored(), u"漢字 "_s);
}

TEST_F(Notes, takeWhatIsDroppedIntoThem) {
    QMimeData dragged;
    dragged.setText(u"dragged here"_s);
    QWidget* target = note().viewport();
    const QPoint place(5, 5);
    QDragEnterEvent enter(place, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    ASSERT_TRUE(enter.isAccepted());
    QDropEvent drop(place, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    EXPECT_TRUE(stored().toString().contains(u"dragged here"_s)) << qPrintable(note().Text());
}

TEST_F(Notes, ofAKeyThatIsHeldDownAreWrittenWhenItIsReleased) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_O, Qt::NoModifier, u"o"_s);
    QApplication::sendEvent(&note(), &press);
    for (int times = 0; times < 3; ++times) {
        QKeyEvent released(QEvent::KeyRelease, Qt::Key_O, Qt::NoModifier, u"o"_s, true);
        QApplication::sendEvent(&note(), &released);
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_O, Qt::NoModifier, u"o"_s, true);
        QApplication::sendEvent(&note(), &repeated);
    }
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_O, Qt::NoModifier, u"o"_s);
    QApplication::sendEvent(&note(), &release);
    EXPECT_EQ(stored(), u"oooo "_s);
}

TEST_F(Notes, pendingStayWithTheirVerseWhenABookmarkIsFollowed) {
    BookmarkText[0] = u"away"_s;
    BookmarkBook[0] = 40;
    BookmarkChapter[0] = 2;
    BookmarkVerse[0] = 5;
    window().CreateMenu();
    QTest::keyPress(&note(), Qt::Key_Z);
    ASSERT_TRUE(stored().isNull());
    window().mnuBookmark(3).trigger();
    EXPECT_EQ(stored(), u"z "_s);
    EXPECT_TRUE(stored(40, 2, 5).isNull());
}

TEST_F(Notes, pendingStayWithTheirVerseWhenAQueryEnds) {
    rsBible = dbBible.OpenRecordset(
        u"SELECT * FROM tblMain WHERE (((body like \"*40:1:2*\")) )"_s, dbOpenDynaset);
    InQuery = On;
    window().UpDateBibleText(true);
    note().SetFocus();
    const QStringList place = position().split(u':');
    QTest::keyPress(&note(), Qt::Key_Z);
    window().cmdMain(6).setValue(true);
    EXPECT_EQ(stored(place[0].toInt(), place[1].toInt(), place[2].toInt()), u"z "_s);
    EXPECT_TRUE(stored(1, 1, 1).isNull());
}

TEST_F(Notes, ofAFileThatBecomesReadOnlyAreRescued) {
    type(u"a"_s);
    asPlainUser(Folder::ReadOnly, [this] {
        type(u"b"_s);
        EXPECT_EQ(note().Text(), u"ab "_s);
    });
    type(u"c"_s);
    EXPECT_EQ(stored(), u"abc "_s) << "written as soon as the file can be";
}

TEST_F(Notes, goToTheUsersHomeWhereTheProgramsFolderIsFull) {
    const QTemporaryDir home;
    const QByteArray homeBefore = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(home.path()));
    ASSERT_TRUE(QDir().mkdir(programFile(u"unsaved notes.txt"_s))); // nothing can be written there
    ASSERT_TRUE(QFile::remove(programFile(u"KJV.mdb"_s)));
    type(u"homeless"_s);
    show(40, 2, 1);
    qputenv("HOME", homeBefore);
    QFile file(home.filePath(u"unsaved notes.txt"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(QString::fromUtf8(file.readAll()).contains(u"Matthew 1:1\nhomeless \n"_s));
}
