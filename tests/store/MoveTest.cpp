// The ends of a cursor, and the steps between them.
#include "StoreFixture.h"

#include <algorithm>

namespace {

class Move : public StoreFixture {
protected:
    Move() { makeTranslation({{1, 1, 1}, {1, 1, 2}, {1, 1, 3}}); }

    Recordset openEmpty() {
        makeTranslation({}, u"empty.mdb"_s);
        return openByVerse(u"empty.mdb"_s);
    }
};

TEST_F(Move, aNewCursorStandsOnTheFirstRow) {
    Recordset cursor = openByVerse();
    EXPECT_EQ(rowOf(cursor), 1);
    EXPECT_FALSE(cursor.Bof());
    EXPECT_FALSE(cursor.Eof());
    EXPECT_FALSE(cursor.NoMatch());
}

TEST_F(Move, pastTheLastRowIsEofWithoutACurrentRow) {
    Recordset cursor = openByVerse();
    cursor.MoveLast();
    EXPECT_FALSE(cursor.Eof()) << "the last row itself is not the end";
    cursor.MoveNext();
    EXPECT_TRUE(cursor.Eof());
    EXPECT_FALSE(cursor.Bof());
    EXPECT_EQ(errorOf([&] { cursor.Fields(0).Value(); }), Error::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { cursor.MoveNext(); }), Error::NoCurrentRecord);
    EXPECT_TRUE(cursor.Eof()) << "the error changes nothing";
}

TEST_F(Move, beforeTheFirstRowIsBofWithoutACurrentRow) {
    Recordset cursor = openByVerse();
    cursor.MovePrevious();
    EXPECT_TRUE(cursor.Bof());
    EXPECT_FALSE(cursor.Eof());
    EXPECT_EQ(errorOf([&] { cursor.Edit(); }), Error::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { cursor.MovePrevious(); }), Error::NoCurrentRecord);
    EXPECT_TRUE(cursor.Bof());
}

TEST_F(Move, backFromEofIsTheLastRowAndOnFromBofTheFirst) {
    Recordset cursor = openByVerse();
    cursor.MovePrevious();
    cursor.MoveNext();
    EXPECT_EQ(rowOf(cursor), 1);
    cursor.MoveLast();
    cursor.MoveNext();
    cursor.MovePrevious();
    EXPECT_EQ(rowOf(cursor), 3);
}

TEST_F(Move, onAnEmptyCursorIsAnErrorAndBothEndsHold) {
    Recordset cursor = openEmpty();
    EXPECT_TRUE(cursor.Bof());
    EXPECT_TRUE(cursor.Eof());
    EXPECT_EQ(errorOf([&] { cursor.MoveFirst(); }), Error::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { cursor.MoveLast(); }), Error::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { cursor.MoveNext(); }), Error::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { cursor.MovePrevious(); }), Error::NoCurrentRecord);
    EXPECT_TRUE(cursor.Bof());
    EXPECT_TRUE(cursor.Eof());
    EXPECT_EQ(cursor.RecordCount(), 0);
}

TEST_F(Move, anEmptyCursorThatGetsARowIsEmptyNoMore) {
    Recordset cursor = openEmpty();
    cursor.AddNew();
    cursor.Fields(1) = 1;
    cursor.Update();
    EXPECT_FALSE(cursor.Bof());
    EXPECT_FALSE(cursor.Eof());
    EXPECT_EQ(errorOf([&] { cursor.Fields(0).Value(); }), Error::NoCurrentRecord);
    cursor.MoveFirst();
    EXPECT_EQ(rowOf(cursor), 1);
}

TEST_F(Move, aDynasetFollowsTheRowsAndATableCursorItsIndex) {
    makeTranslation({{2, 1, 1}, {1, 1, 1}, {3, 1, 1}}, u"mixed.mdb"_s);
    EXPECT_EQ(walk(openDynaset(u"tblMain"_s, u"mixed.mdb"_s)), (std::vector<qlonglong>{1, 2, 3}));
    EXPECT_EQ(walk(openByVerse(u"mixed.mdb"_s)), (std::vector<qlonglong>{2, 1, 3}));
}

TEST_F(Move, nullsInTheKeyComeFirstAndLoseNoRow) {
    makeFile(
        {"CREATE TABLE t (id INTEGER PRIMARY KEY, a INTEGER, b INTEGER)",
         "CREATE INDEX i ON t (a, b)",
         "INSERT INTO t VALUES (1,1,1),(2,NULL,2),(3,1,NULL),(4,NULL,NULL),(5,2,NULL),(6,NULL,1),"
         "(7,1,NULL),(8,NULL,NULL),(9,0,0),(10,-1,NULL)"},
        u"null.mdb"_s);
    Recordset cursor = openDatabase(u"null.mdb"_s).OpenRecordset(u"t"_s, dbOpenTable);
    cursor.Index(u"i"_s);
    const std::vector<qlonglong> order = {4, 8, 6, 2, 10, 9, 3, 7, 1, 5};
    EXPECT_EQ(walk(cursor), order);
    EXPECT_EQ(walkBack(cursor), std::vector<qlonglong>(order.rbegin(), order.rend()));
}

TEST_F(Move, keysOfEveryKindKeepTheirOrder) {
    makeFile(
        {"CREATE TABLE t (id INTEGER PRIMARY KEY, a)", "CREATE INDEX i ON t (a)",
         "INSERT INTO t VALUES (1,'b'),(2,x'00'),(3,NULL),(4,1.5),(5,1),(6,'a'),(7,''),"
         "(8,x''),(9,-9e999),(10,9e999),(11,9223372036854775807),(12,9223372036854775807.0),"
         "(13,2)"},
        u"kinds.mdb"_s);
    Recordset cursor = openDatabase(u"kinds.mdb"_s).OpenRecordset(u"t"_s, dbOpenTable);
    cursor.Index(u"i"_s);
    const std::vector<qlonglong> order = {3, 9, 5, 4, 13, 11, 12, 10, 7, 6, 1, 8, 2};
    EXPECT_EQ(walk(cursor), order);
    EXPECT_EQ(walkBack(cursor), std::vector<qlonglong>(order.rbegin(), order.rend()));
}

TEST_F(Move, walksMoreRowsThanAreReadAheadInBothDirections) {
    std::vector<Verse> verses;
    for (int row = 0; row < 3000; ++row)
        verses.push_back({row / 100 + 1, row % 100 / 10 + 1, row % 10 + 1});
    makeTranslation(verses, u"long.mdb"_s);
    Recordset cursor = openByVerse(u"long.mdb"_s);
    const std::vector<qlonglong> rows = walk(cursor);
    ASSERT_EQ(rows.size(), 3000u);
    EXPECT_TRUE(std::is_sorted(rows.begin(), rows.end()));
    EXPECT_EQ(walkBack(cursor), std::vector<qlonglong>(rows.rbegin(), rows.rend()));
    cursor.MoveFirst();
    qlonglong expected = 1;
    for (int turn = 0; turn < 3000; ++turn) { // two on and one back, over the window's edges
        turn % 3 == 2 ? cursor.MovePrevious() : cursor.MoveNext();
        expected += turn % 3 == 2 ? -1 : 1;
        ASSERT_EQ(rowOf(cursor), expected);
    }
}

TEST_F(Move, largeRowsAreWalkedToo) {
    std::vector<Verse> verses;
    for (int row = 1; row <= 60; ++row)
        verses.push_back({1, 1, row, u"x"_s.repeated(row % 7 == 0 ? 600000 : 30000)});
    makeTranslation(verses, u"large.mdb"_s);
    Recordset cursor = openByVerse(u"large.mdb"_s);
    EXPECT_EQ(walk(cursor).size(), 60u);
    EXPECT_EQ(walkBack(cursor).size(), 60u);
}

TEST_F(Move, recordCountOfATableCursorIsThatOfItsRows) {
    EXPECT_EQ(openByVerse().RecordCount(), 3);
}

TEST_F(Move, recordCountOfADynasetGoesUpToTheFarthestRow) {
    Recordset cursor = openDynaset();
    EXPECT_EQ(cursor.RecordCount(), 1);
    cursor.MoveNext();
    EXPECT_EQ(cursor.RecordCount(), 2);
    cursor.MoveFirst();
    EXPECT_EQ(cursor.RecordCount(), 2);
    cursor.MoveLast();
    EXPECT_EQ(cursor.RecordCount(), 3);
    cursor.MoveFirst();
    EXPECT_EQ(cursor.RecordCount(), 3);
}

TEST_F(Move, recordCountCountsRowsAndNotNumbers) {
    Recordset cursor = openDynaset();
    cursor.MoveNext();
    cursor.Delete();
    cursor.MoveLast();
    EXPECT_EQ(rowOf(cursor), 3);
    EXPECT_EQ(cursor.RecordCount(), 2);
}

} // namespace
