// Who makes a file anew keeps other programs from writing into the old one.
#include "store/WriteBarrier.h"
#include "StoreFixture.h"
#include "support/OtherProgram.h"

#include <QFile>

namespace {

const QString storeHelper = QStringLiteral(LUMENVIA_STORE_HELPER);

class Barrier : public StoreFixture {
protected:
    Barrier() { makeTranslation({{1, 1, 1, u"body"_s, u"mine"_s}}); }

    // What another program meets that writes a note.
    QString reportOfAnotherProgram() {
        OtherProgram program(storeHelper, {u"note"_s, path(), u"theirs"_s});
        program.readLine();
        EXPECT_TRUE(program.endsWell());
        return program.readLine();
    }

    QVariant note() { return openDynaset().Fields(u"note"_s).Value(); }
};

TEST_F(Barrier, keepsOtherProgramsFromWriting) {
    const Database database = openDatabase();
    const WriteBarrier barrier(database);
    const QString report = reportOfAnotherProgram();
    EXPECT_TRUE(report.contains(u"in use"_s)) << report.toStdString();
}

TEST_F(Barrier, isGoneWithItsEnd) {
    const Database database = openDatabase();
    { const WriteBarrier barrier(database); }
    EXPECT_EQ(reportOfAnotherProgram(), u"update: done"_s);
    EXPECT_EQ(note(), QVariant(u"theirs"_s));
}

TEST_F(Barrier, letsTheDatabaseBeReadAndStaysWhenThatIsClosed) {
    Database database = openDatabase();
    const WriteBarrier barrier(database);
    EXPECT_EQ(walk(database.OpenRecordset(u"tblMain"_s)).size(), 1u);
    database.Close();
    const QString report = reportOfAnotherProgram();
    EXPECT_TRUE(report.contains(u"in use"_s)) << report.toStdString();
}

TEST_F(Barrier, anUpdateThatItRefusedCanBeTriedAgain) {
    Recordset cursor = openDynaset();
    cursor.Edit();
    cursor.Fields(u"note"_s) = u"mine, longer"_s;
    {
        const Database database = openDatabase();
        const WriteBarrier barrier(database);
        EXPECT_EQ(errorOf([&] { cursor.Update(); }), Error::StorageFailure);
    }
    cursor.Update();
    EXPECT_EQ(note(), QVariant(u"mine, longer"_s));
}

TEST_F(Barrier, ofAFileThatAnotherProgramIsWritingIsAnError) {
    const Database database = openDatabase();
    OtherProgram holder(storeHelper, {u"lock"_s, path()});
    ASSERT_EQ(holder.readLine(), u"locked"_s);
    const QString text = errorTextOf([&] { const WriteBarrier barrier(database); });
    EXPECT_TRUE(text.contains(u"in use"_s)) << text.toStdString();
}

TEST_F(Barrier, ofAFileThatWasReplacedIsAnError) {
    const Database database = openDatabase();
    makeTranslation({{1, 1, 1, u"new"_s}});
    const QString text = errorTextOf([&] { const WriteBarrier barrier(database); });
    EXPECT_TRUE(text.contains(u"was replaced"_s)) << text.toStdString();
}

TEST_F(Barrier, letsTheNewFileTakeItsPlaceBesideAJournalThatADeadProgramLeft) {
    const Database database = openDatabase();
    QFile journal(path(u"test.mdb-journal"_s));
    ASSERT_TRUE(journal.open(QIODevice::WriteOnly));
    const WriteBarrier barrier(database);
    makeTranslation({{1, 1, 1, u"new"_s, u"new note"_s}});
    EXPECT_EQ(note(), QVariant(u"new note"_s));
    EXPECT_FALSE(journal.exists());
}

TEST_F(Barrier, keepsOutAProgramThatHasTheOldFileOpenUntilTheNewOneIsThere) {
    OtherProgram program(storeHelper, {u"note"_s, path(), u"theirs"_s});
    ASSERT_EQ(program.readLine(), u"open"_s);
    const Database database = openDatabase();
    const WriteBarrier barrier(database);
    makeTranslation({{1, 1, 1, u"new"_s, u"carried"_s}});
    EXPECT_TRUE(program.endsWell());
    EXPECT_TRUE(program.readLine().startsWith(u"update: 3049 "_s));
    EXPECT_EQ(note(), QVariant(u"carried"_s));
}

} // namespace
