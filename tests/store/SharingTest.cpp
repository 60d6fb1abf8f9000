// Several cursors and several connections on one file: each sees what the others wrote, at once.
#include "StoreFixture.h"

namespace {

class Sharing : public StoreFixture {
protected:
    Sharing() {
        makeTranslation({{1, 1, 1, u"one"_s}, {1, 1, 2, u"two"_s}, {1, 1, 3, u"three"_s}});
        mine = openByVerse();
        theirs = openDynaset();
    }

    void theyWrite(int row, int field, const QVariant& value) {
        theirs.FindFirst(u"ID = %1"_s.arg(row));
        theirs.Edit();
        theirs.Fields(field) = value;
        theirs.Update();
    }

    void theyDelete(int row) {
        theirs.FindFirst(u"ID = %1"_s.arg(row));
        theirs.Delete();
    }

    void theyAdd(int verse) {
        theirs.AddNew();
        theirs.Fields(1) = 1;
        theirs.Fields(2) = 1;
        theirs.Fields(3) = verse;
        theirs.Update();
    }

    Recordset mine;
    Recordset theirs;
};

TEST_F(Sharing, aWriteIsSeenInTheCurrentRow) {
    EXPECT_EQ(mine.Fields(4).Value(), QVariant(u"one"_s));
    theyWrite(1, 4, u"ONE"_s);
    EXPECT_EQ(mine.Fields(4).Value(), QVariant(u"ONE"_s));
}

TEST_F(Sharing, aWriteIsSeenInRowsReadAhead) {
    mine.MoveNext();
    mine.MovePrevious();
    theyWrite(2, 4, u"TWO"_s);
    mine.MoveNext();
    EXPECT_EQ(mine.Fields(4).Value(), QVariant(u"TWO"_s));
}

TEST_F(Sharing, cursorsOfOneDatabaseSeeEachOtherToo) {
    Database database = openDatabase();
    Recordset one = database.OpenRecordset(u"tblMain"_s);
    Recordset two = database.OpenRecordset(u"tblMain"_s);
    one.Edit();
    one.Fields(4) = u"changed"_s;
    one.Update();
    EXPECT_EQ(two.Fields(4).Value(), QVariant(u"changed"_s));
}

TEST_F(Sharing, rowsAddedAheadAndBehindAreMet) {
    mine.MoveNext();
    theyAdd(2);
    theyAdd(0);
    mine.MoveNext();
    EXPECT_EQ(rowOf(mine), 4);
    mine.MovePrevious();
    mine.MovePrevious();
    EXPECT_EQ(rowOf(mine), 1);
    mine.MovePrevious();
    EXPECT_EQ(rowOf(mine), 5);
}

TEST_F(Sharing, aRowDeletedAheadIsNotMet) {
    mine.MoveNext();
    mine.MovePrevious();
    theyDelete(2);
    mine.MoveNext();
    EXPECT_EQ(rowOf(mine), 3);
}

TEST_F(Sharing, theCurrentRowDeletedByAnotherCannotBeReadOrWritten) {
    mine.MoveNext();
    theyDelete(2);
    EXPECT_EQ(errorOf([&] { mine.Fields(4).Value(); }), Error::RecordDeleted);
    EXPECT_EQ(errorOf([&] { mine.Edit(); }), Error::RecordDeleted);
    EXPECT_EQ(errorOf([&] { mine.Delete(); }), Error::RecordDeleted);
    EXPECT_FALSE(mine.Bof() || mine.Eof());
}

TEST_F(Sharing, aRowDeletedDuringItsEditCannotBeUpdated) {
    mine.Edit();
    mine.Fields(4) = u"x"_s;
    theyDelete(1);
    EXPECT_EQ(errorOf([&] { mine.Update(); }), Error::RecordDeleted);
}

TEST_F(Sharing, fromADeletedRowMovesGoOnFromItsPlace) {
    mine.MoveNext();
    theyDelete(2);
    mine.MoveNext();
    EXPECT_EQ(rowOf(mine), 3);
    mine.MovePrevious();
    EXPECT_EQ(rowOf(mine), 1);
    mine.MoveNext();
    theyDelete(3);
    mine.MovePrevious();
    EXPECT_EQ(rowOf(mine), 1);
    mine.MoveNext();
    EXPECT_TRUE(mine.Eof());
}

TEST_F(Sharing, fromADeletedRowFindsGoOnFromItsPlace) {
    Recordset dynaset = openDynaset();
    dynaset.MoveNext();
    theyDelete(2);
    dynaset.FindNext(u"book = 1"_s);
    EXPECT_EQ(rowOf(dynaset), 3);
}

TEST_F(Sharing, theCursorFollowsARowWhoseKeyAnotherChanges) {
    theyWrite(1, 3, 9);
    mine.MoveNext();
    EXPECT_TRUE(mine.Eof()) << "row 1 is the last one now";
    mine.MovePrevious();
    EXPECT_EQ(rowOf(mine), 1);
    theyWrite(1, 3, 0);
    mine.MoveNext();
    EXPECT_EQ(rowOf(mine), 2);
}

TEST_F(Sharing, endsAreThoseOfTheFileAsItIsNow) {
    mine.MoveLast();
    mine.MoveNext();
    theyAdd(4);
    EXPECT_TRUE(mine.Eof());
    mine.MovePrevious();
    EXPECT_EQ(rowOf(mine), 4);
}

TEST_F(Sharing, anUpdateWritesNoFieldThatWasNotAssigned) {
    mine.Edit();
    mine.Fields(5) = u"my note"_s;
    theyWrite(1, 4, u"their body"_s);
    mine.Update();
    EXPECT_EQ(mine.Fields(4).Value(), QVariant(u"their body"_s));
    EXPECT_EQ(mine.Fields(5).Value(), QVariant(u"my note"_s));
}

TEST_F(Sharing, aTableThatBecomesEmptyHasBothEnds) {
    for (int row = 1; row <= 3; ++row)
        theyDelete(row);
    EXPECT_EQ(errorOf([&] { mine.MoveFirst(); }), Error::NoCurrentRecord);
    EXPECT_TRUE(mine.Bof() && mine.Eof());
}

TEST_F(Sharing, openCursorsKeepNobodyFromWriting) {
    std::vector<Recordset> cursors;
    for (int count = 0; count < 20; ++count) {
        cursors.push_back(openByVerse());
        cursors.back().MoveNext();
        cursors.push_back(openDynaset(u"SELECT * FROM tblMain WHERE book = 1"_s));
        cursors.back().FindNext(u"book = 1"_s);
        cursors.back().Edit();
    }
    theyWrite(2, 4, u"written"_s);
    for (Recordset& cursor : cursors)
        EXPECT_EQ(cursor.Fields(4).Value(), QVariant(u"written"_s));
}

TEST_F(Sharing, aFileThatWasReplacedIsNotWrittenByOldCursors) {
    mine.Edit();
    mine.Fields(4) = u"too late"_s;
    makeTranslation({{1, 1, 1, u"new file"_s}});
    EXPECT_EQ(errorOf([&] { mine.Update(); }), Error::StorageFailure);
    EXPECT_EQ(openByVerse().Fields(4).Value(), QVariant(u"new file"_s));
}

} // namespace
