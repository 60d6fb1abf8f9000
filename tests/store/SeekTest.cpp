// Seek and Index on a table cursor.
#include "StoreFixture.h"

namespace {

class Seek : public StoreFixture {
protected:
    // Rows out of verse order, so that following the index shows.
    Seek() {
        makeTranslation(
            {{40, 1, 1}, {1, 1, 2}, {1, 1, 1}, {1, 2, 1}, {2, 1, 1}, {1, 1, 1}, {66, 22, 21}});
    }
};

TEST_F(Seek, standsOnTheRowOfTheKey) {
    Recordset cursor = openByVerse();
    cursor.Seek(u"="_s, 1, 2, 1);
    EXPECT_FALSE(cursor.NoMatch());
    EXPECT_EQ(rowOf(cursor), 4);
}

TEST_F(Seek, takesNumericTextsAndWholeDoubles) {
    Recordset cursor = openByVerse();
    cursor.Seek(u"="_s, u"66"_s, u" 22 "_s, 21.0);
    EXPECT_EQ(rowOf(cursor), 7);
    cursor.Seek(u"="_s, u"2"_s, 1, u"1"_s);
    EXPECT_EQ(rowOf(cursor), 5);
}

TEST_F(Seek, ofADoubledKeyIsItsFirstRow) {
    Recordset cursor = openByVerse();
    cursor.Seek(u"="_s, 1, 1, 1);
    EXPECT_EQ(rowOf(cursor), 3);
    cursor.MoveNext();
    EXPECT_EQ(rowOf(cursor), 6);
}

TEST_F(Seek, withFewerValuesStandsOnTheFirstRowOfThatHead) {
    Recordset cursor = openByVerse();
    cursor.Seek(u"="_s, 1);
    EXPECT_EQ(rowOf(cursor), 3);
    cursor.Seek(u"="_s, 1, 2);
    EXPECT_EQ(rowOf(cursor), 4);
}

TEST_F(Seek, onNoMatchThereIsNoCurrentRow) {
    Recordset cursor = openByVerse();
    cursor.Seek(u"="_s, 1, 1, 3);
    EXPECT_TRUE(cursor.NoMatch());
    EXPECT_FALSE(cursor.Bof());
    EXPECT_FALSE(cursor.Eof());
    EXPECT_EQ(errorOf([&] { cursor.Fields(1).Value(); }), Error::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { cursor.MoveNext(); }), Error::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { cursor.MovePrevious(); }), Error::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { cursor.Edit(); }), Error::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { cursor.Delete(); }), Error::NoCurrentRecord);
}

TEST_F(Seek, recoversFromNoMatchByMoveFirstOrAnotherSeek) {
    Recordset cursor = openByVerse();
    cursor.Seek(u"="_s, 3, 1, 1);
    cursor.MoveFirst();
    EXPECT_EQ(rowOf(cursor), 3);
    EXPECT_TRUE(cursor.NoMatch());
    cursor.Seek(u"="_s, 2, 1, 1);
    EXPECT_FALSE(cursor.NoMatch());
    EXPECT_EQ(rowOf(cursor), 5);
}

TEST_F(Seek, toTheFirstVerseThenBackIsBof) {
    Recordset cursor = openByVerse();
    cursor.Seek(u"="_s, 1, 1, 1);
    cursor.MovePrevious();
    EXPECT_TRUE(cursor.Bof());
    EXPECT_FALSE(cursor.Eof());
    cursor.MoveFirst();
    EXPECT_EQ(rowOf(cursor), 3);
}

TEST_F(Seek, isOfFractionsAndHugeNumbersNoMatch) {
    Recordset cursor = openByVerse();
    cursor.Seek(u"="_s, 1.5, 1, 1);
    EXPECT_TRUE(cursor.NoMatch());
    cursor.Seek(u"="_s, 1e300, 1, 1);
    EXPECT_TRUE(cursor.NoMatch());
    cursor.Seek(u"="_s, QVariant(), 1, 1);
    EXPECT_TRUE(cursor.NoMatch());
}

TEST_F(Seek, refusesWhatIsNoKey) {
    Recordset cursor = openByVerse();
    EXPECT_EQ(errorOf([&] { cursor.Seek(u"="_s, u"x"_s, 1, 1); }), Error::DataTypeConversion);
    EXPECT_EQ(errorOf([&] { cursor.Seek(u"="_s, u""_s, 1, 1); }), Error::DataTypeConversion);
    EXPECT_EQ(errorOf([&] { cursor.Seek(u"="_s, 1, 1, 1, 1); }), Error::InvalidPropertyValue);
    EXPECT_EQ(errorOf([&] { cursor.Seek(u"="_s); }), Error::InvalidPropertyValue);
    EXPECT_EQ(errorOf([&] { cursor.Seek(u">="_s, 1, 1, 1); }), Error::NotSupportedHere);
    EXPECT_EQ(rowOf(cursor), 3) << "a refused Seek leaves the cursor where it was";
}

TEST_F(Seek, needsATableCursorWithAnIndex) {
    Recordset dynaset = openDynaset();
    EXPECT_EQ(errorOf([&] { dynaset.Seek(u"="_s, 1, 1, 1); }), Error::NotSupportedHere);
    EXPECT_EQ(errorOf([&] { dynaset.Index(u"VerseIndex"_s); }), Error::NotSupportedHere);
    Recordset table = openDatabase().OpenRecordset(u"tblMain"_s, dbOpenTable);
    EXPECT_EQ(errorOf([&] { table.Seek(u"="_s, 1, 1, 1); }), Error::NotSupportedHere);
}

TEST_F(Seek, findsRowsWithNullInTheKey) {
    makeFile(
        {"CREATE TABLE t (a INTEGER, b INTEGER, c TEXT)", "CREATE INDEX i ON t (a, b)",
         "INSERT INTO t VALUES (NULL, 1, 'x'), (1, NULL, 'y'), (1, 1, 'z')"},
        u"null.mdb"_s);
    Recordset cursor = openDatabase(u"null.mdb"_s).OpenRecordset(u"t"_s, dbOpenTable);
    cursor.Index(u"i"_s);
    cursor.Seek(u"="_s, 1, QVariant());
    EXPECT_EQ(cursor.Fields(2).Value(), QVariant(u"y"_s));
    cursor.Seek(u"="_s, QVariant());
    EXPECT_EQ(cursor.Fields(2).Value(), QVariant(u"x"_s));
}

TEST_F(Seek, findsNumbersInAKeyOfTexts) {
    makeFile(
        {"CREATE TABLE t (book TEXT, body TEXT)", "CREATE INDEX i ON t (book)",
         "INSERT INTO t VALUES ('12', 'x'), ('9', 'y')"},
        u"text.mdb"_s);
    Recordset cursor = openDatabase(u"text.mdb"_s).OpenRecordset(u"t"_s, dbOpenTable);
    cursor.Index(u"i"_s);
    cursor.Seek(u"="_s, 12);
    EXPECT_EQ(cursor.Fields(1).Value(), QVariant(u"x"_s));
    cursor.Seek(u"="_s, 9.0);
    EXPECT_EQ(cursor.Fields(1).Value(), QVariant(u"y"_s));
}

TEST_F(Seek, indexOrdersTheCursorAndStandsOnItsFirstRow) {
    Recordset cursor = openDatabase().OpenRecordset(u"tblMain"_s, dbOpenTable);
    EXPECT_EQ(walk(cursor), (std::vector<qlonglong>{1, 2, 3, 4, 5, 6, 7}));
    cursor.MoveLast();
    cursor.Index(u"VERSEINDEX"_s);
    EXPECT_EQ(rowOf(cursor), 3);
    EXPECT_EQ(walk(cursor), (std::vector<qlonglong>{3, 6, 2, 4, 5, 1, 7}));
    EXPECT_EQ(walkBack(cursor), (std::vector<qlonglong>{7, 1, 5, 4, 2, 6, 3}));
}

TEST_F(Seek, indexThatIsNoneOrDoesNotSimplyOrderTheRowsIsAnError) {
    makeFile(
        {"CREATE TABLE t (a INTEGER, b TEXT)", "CREATE TABLE u (a INTEGER)",
         "CREATE INDEX other ON u (a)", "CREATE INDEX falling ON t (a DESC)",
         "CREATE INDEX partly ON t (a) WHERE a > 1", "CREATE INDEX computed ON t (a + 1)",
         "CREATE INDEX collated ON t (b COLLATE NOCASE)"},
        u"odd.mdb"_s);
    Recordset cursor = openDatabase(u"odd.mdb"_s).OpenRecordset(u"t"_s, dbOpenTable);
    for (const QString& name :
         {u""_s, u"none"_s, u"other"_s, u"falling"_s, u"partly"_s, u"computed"_s, u"collated"_s})
        EXPECT_EQ(errorOf([&] { cursor.Index(name); }), Error::NotAnIndex) << name.toStdString();
}

} // namespace
