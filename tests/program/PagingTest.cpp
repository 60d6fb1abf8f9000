// Genesis, Psalms, Obadiah and Revelation of the real text, paged by the keys of the window beside
// a plain model of the rules.
#include "core/BookNames.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "program/PagingModel.h"
#include "reader/frmMain.h"
#include "support/ProgramFixture.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class Paging : public ProgramFixture {
protected:
    void SetUp() override {
        const QString bibles = qEnvironmentVariable("LUMENVIA_BIBLES");
        ASSERT_TRUE(QFile::copy(bibles + u"/KJV.mdb"_s, programFile(u"KJV.mdb"_s)));
        startProgram();
        QCoreApplication::processEvents();
        readVerses();
    }

    void readVerses() {
        Recordset rows = dbBible.OpenRecordset(u"tblMain"_s, dbOpenTable);
        rows.Index(u"VerseIndex"_s);
        for (; !rows.Eof(); rows.MoveNext()) {
            m_verses.append(
                {rows.Fields(1).Value().toInt(), rows.Fields(2).Value().toInt(),
                 rows.Fields(3).Value().toInt()});
        }
    }

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        form<frmMain>().txtMain.SetFocus();
        QTest::keyClick(&form<frmMain>().txtMain, key, modifiers);
    }

    static QString textOf(const PlainVerse& verse) {
        return u"%1:%2:%3"_s.arg(verse.book).arg(verse.chapter).arg(verse.verse);
    }

    // The window shows what the model says.
    static void expectSame(const PagingModel& model) {
        const frmMain& window = form<frmMain>();
        const PlainVerse& top = model.top();
        const QString reference = u"[%1 %2:%3] "_s.arg(BookNames[static_cast<size_t>(top.book) - 1])
                                      .arg(top.chapter)
                                      .arg(top.verse);
        ASSERT_TRUE(window.Caption().endsWith(reference))
            << window.Caption().toStdString() << " for " << reference.toStdString();
        ASSERT_EQ(position().toStdString(), textOf(model.cursor()).toStdString());
        const QString text = window.txtMain.Text();
        const qsizetype lines = text.isEmpty() ? 0 : text.count(u'\n') + 1;
        ASSERT_EQ(lines, model.page().size()) << reference.toStdString();
        if (lines == 0)
            return;
        for (const qsizetype line : {qsizetype(0), lines - 1}) {
            const PlainVerse& verse = model.page()[line];
            const QString start = u"%1 %2:%3 "_s.arg(BookNames[static_cast<size_t>(verse.book) - 1])
                                      .arg(verse.chapter)
                                      .arg(verse.verse);
            ASSERT_TRUE(text.section(u'\n', line, line).startsWith(start));
        }
    }

    // Pages from the head of a book until it is passed, and as many times back.
    void pageThrough(int book, int versesPerPage) {
        VersesPerPage = static_cast<qint16>(versesPerPage);
        PagingModel model(m_verses, versesPerPage);
        model.seek({book, 1, 1});
        rsBible.Seek(u"="_s, book, 1, 1);
        form<frmMain>().UpDateBibleText(true);
        model.compose();
        int turns = 0;
        for (; model.top().book == book && turns < 200; ++turns) {
            press(Qt::Key_PageDown);
            model.pageDown(1);
            ASSERT_NO_FATAL_FAILURE(expectSame(model)) << "turn " << turns;
            if (model.page().isEmpty())
                break;
        }
        for (int turn = 0; turn <= turns; ++turn) {
            press(Qt::Key_PageUp);
            model.pageUp(1);
            ASSERT_NO_FATAL_FAILURE(expectSame(model)) << "turn back " << turn;
        }
    }

    QList<PlainVerse> m_verses;
};

} // namespace

TEST_F(Paging, throughGenesis) {
    pageThrough(1, 40);
}

TEST_F(Paging, throughPsalms) {
    pageThrough(19, 40);
}

TEST_F(Paging, throughObadiah) {
    pageThrough(31, 40);
}

TEST_F(Paging, throughRevelation) {
    pageThrough(66, 40);
}

TEST_F(Paging, withSmallAndLargePages) {
    for (const int size : {0, 1, 10, 176}) {
        pageThrough(31, size);
        pageThrough(66, size);
    }
}

TEST_F(Paging, byAnyKeyInAnyOrder) {
    struct Move {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        void (*model)(PagingModel&);
    };
    const Move moves[] = {
        {Qt::Key_PageDown, Qt::NoModifier, [](PagingModel& model) { model.pageDown(1); }},
        {Qt::Key_PageUp, Qt::NoModifier, [](PagingModel& model) { model.pageUp(1); }},
        {Qt::Key_PageDown, Qt::ShiftModifier, [](PagingModel& model) { model.pageDown(2); }},
        {Qt::Key_PageUp, Qt::ShiftModifier, [](PagingModel& model) { model.pageUp(2); }},
        {Qt::Key_Down, Qt::NoModifier, [](PagingModel& model) { model.down(); }},
        {Qt::Key_Up, Qt::NoModifier, [](PagingModel& model) { model.up(); }},
        {Qt::Key_PageDown, Qt::ControlModifier, [](PagingModel& model) { model.nextBook(); }},
        {Qt::Key_PageUp, Qt::ControlModifier, [](PagingModel& model) { model.previousBook(); }},
        {Qt::Key_PageDown, Qt::AltModifier, [](PagingModel& model) { model.nextChapter(); }},
        {Qt::Key_PageUp, Qt::AltModifier, [](PagingModel& model) { model.previousChapter(); }},
        {Qt::Key_A, Qt::NoModifier, [](PagingModel& model) { model.compose(); }},
    };
    QRandomGenerator random(31102);
    PagingModel model(m_verses, VersesPerPage);
    model.seek({40, 1, 1});
    model.compose();
    for (int turn = 0; turn < 2'000; ++turn) {
        const Move& move = moves[random.bounded(static_cast<int>(std::size(moves)))];
        press(move.key, move.modifiers);
        move.model(model);
        ASSERT_NO_FATAL_FAILURE(expectSame(model)) << "turn " << turn;
    }
}
