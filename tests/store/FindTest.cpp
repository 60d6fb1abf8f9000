// FindFirst, FindNext and FindPrevious on dynasets.
#include "StoreFixture.h"

namespace {

class Find : public StoreFixture {
protected:
    Find() {
        makeTranslation(
            {{1, 1, 1, u"In the beginning"_s, u"a note"_s},
             {1, 1, 2, u"Let there be LIGHT"_s, QVariant()},
             {40, 1, 1, u"The light shineth"_s, u" "_s},
             {66, 1, 1, QVariant(), QVariant()},
             {12, 1, 1, u"ÉLU, the Λόγος"_s, u"Light in a note"_s}});
        cursor = openDynaset();
    }

    // The row on which FindFirst stands; 0 on no match.
    qlonglong found(const QString& criteria) {
        cursor.FindFirst(criteria);
        return cursor.NoMatch() ? 0 : rowOf(cursor);
    }

    Recordset cursor;
};

TEST_F(Find, firstScansFromTheStart) {
    cursor.MoveLast();
    EXPECT_EQ(found(u"Body like '*light*'"_s), 2);
}

TEST_F(Find, nextGoesOnBehindTheCurrentRow) {
    cursor.FindNext(u"Body like '*in the*'"_s);
    EXPECT_TRUE(cursor.NoMatch()) << "the current row itself is not tested";
    cursor.FindNext(u"Body like '*light*'"_s);
    EXPECT_EQ(rowOf(cursor), 2);
    cursor.FindNext(u"Body like '*light*'"_s);
    EXPECT_EQ(rowOf(cursor), 3);
}

TEST_F(Find, previousGoesBackBeforeTheCurrentRow) {
    cursor.MoveLast();
    cursor.FindPrevious(u"Body like '*light*'"_s);
    EXPECT_EQ(rowOf(cursor), 3);
    cursor.FindPrevious(u"Body like '*light*'"_s);
    EXPECT_EQ(rowOf(cursor), 2);
    cursor.FindPrevious(u"Body like '*light*'"_s);
    EXPECT_TRUE(cursor.NoMatch());
}

TEST_F(Find, onNoMatchTheCurrentRowStays) {
    cursor.MoveNext();
    for (const auto find :
         {&Recordset::FindFirst, &Recordset::FindNext, &Recordset::FindPrevious}) {
        (cursor.*find)(u"Body like '*darkness*'"_s);
        EXPECT_TRUE(cursor.NoMatch());
        EXPECT_EQ(rowOf(cursor), 2);
    }
    cursor.FindFirst(u"ID = 1"_s);
    EXPECT_FALSE(cursor.NoMatch());
}

TEST_F(Find, onNoMatchAtEofItStaysEof) {
    cursor.MoveLast();
    cursor.MoveNext();
    cursor.FindFirst(u"ID = 99"_s);
    EXPECT_TRUE(cursor.NoMatch());
    EXPECT_TRUE(cursor.Eof());
    EXPECT_EQ(found(u"ID = 2"_s), 2);
}

TEST_F(Find, nextAndPreviousNeedACurrentRow) {
    cursor.MoveLast();
    cursor.MoveNext();
    EXPECT_EQ(errorOf([&] { cursor.FindNext(u"ID = 1"_s); }), Error::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { cursor.FindPrevious(u"ID = 1"_s); }), Error::NoCurrentRecord);
}

TEST_F(Find, onAnEmptyCursorMatchesNothing) {
    makeTranslation({}, u"empty.mdb"_s);
    Recordset empty = openDynaset(u"tblMain"_s, u"empty.mdb"_s);
    for (const auto find :
         {&Recordset::FindFirst, &Recordset::FindNext, &Recordset::FindPrevious}) {
        (empty.*find)(u"ID = 1"_s);
        EXPECT_TRUE(empty.NoMatch());
    }
}

TEST_F(Find, byNumberTakesEveryWayToWriteIt) {
    for (const QString& criteria :
         {u"ID = 3"_s, u"ID =3"_s, u" ID=3"_s, u"ID =  3"_s, u"id=3"_s, u"ID = 3.0"_s})
        EXPECT_EQ(found(criteria), 3) << criteria.toStdString();
    for (const QString& criteria :
         {u"ID = 0"_s, u"ID = -3"_s, u"ID = 3.5"_s, u"ID = 1e30"_s, u"ID = 3 and ID = 4"_s})
        EXPECT_EQ(found(criteria), 0) << criteria.toStdString();
    EXPECT_EQ(found(u"ID = 3 or ID = 4"_s), 3);
    EXPECT_EQ(found(u"(ID = 4 or ID = 3) and ID > 3"_s), 4);
}

TEST_F(Find, byNumberKeepsItsDirection) {
    cursor.FindFirst(u"ID = 3"_s);
    cursor.FindNext(u"ID = 3"_s);
    EXPECT_TRUE(cursor.NoMatch());
    cursor.FindNext(u"ID = 2"_s);
    EXPECT_TRUE(cursor.NoMatch());
    cursor.FindPrevious(u"ID = 4"_s);
    EXPECT_TRUE(cursor.NoMatch());
    cursor.FindPrevious(u"ID = 1"_s);
    EXPECT_EQ(rowOf(cursor), 1);
}

TEST_F(Find, comparesNumbers) {
    EXPECT_EQ(found(u"book = 12"_s), 5);
    EXPECT_EQ(found(u"BOOK > 39"_s), 3);
    EXPECT_EQ(found(u"BOOK > 40"_s), 4);
    EXPECT_EQ(found(u"book < 40 and verse > 1"_s), 2);
    EXPECT_EQ(found(u"book = 1 and chapter = 1 and verse = 2"_s), 2);
    EXPECT_EQ(found(u"book > 66"_s), 0);
}

TEST_F(Find, comparesTheNumbersThatTextsHold) {
    makeFile(
        {"CREATE TABLE tblMain (book TEXT, body TEXT)",
         "INSERT INTO tblMain VALUES ('9','nine'),('12',NULL),('abc','letters'),('',''),"
         "(NULL,'none'),(' 40 ','forty'),('100','hundred')"},
        u"texts.mdb"_s);
    Recordset texts = openDynaset(u"tblMain"_s, u"texts.mdb"_s);
    const auto bookFound = [&](const QString& criteria) {
        texts.FindFirst(criteria);
        return texts.NoMatch() ? u"no match"_s : texts.Fields(0).Value().toString();
    };
    EXPECT_EQ(bookFound(u"book = 12"_s), u"12"_s);
    EXPECT_EQ(bookFound(u"BOOK > 39"_s), u" 40 "_s);
    EXPECT_EQ(bookFound(u"BOOK > 40"_s), u"100"_s);
    EXPECT_EQ(bookFound(u"BOOK < 9"_s), u"no match"_s);
    EXPECT_EQ(bookFound(u"book = 0"_s), u"no match"_s);
    EXPECT_EQ(bookFound(u"book = \"ABC\""_s), u"abc"_s);
}

TEST_F(Find, comparesTextsWithoutRegardToCase) {
    EXPECT_EQ(found(u"body = \"let THERE be light\""_s), 2);
    EXPECT_EQ(found(u"body = \"let there\""_s), 0);
    EXPECT_EQ(found(u"body like \"élu*\""_s), 5);
    EXPECT_EQ(found(u"body like '*ΛΌΓΟΣ'"_s), 5);
    EXPECT_EQ(found(u"verse = \"2\""_s), 2);
    EXPECT_EQ(found(u"verse like \"2*\""_s), 2);
    EXPECT_EQ(found(u"body > \"the\""_s), 3);
    EXPECT_EQ(found(u"verse like \"2*\" and verse = 2 and verse < \"3\""_s), 2);
}

TEST_F(Find, aNullFieldMeetsNoComparison) {
    EXPECT_EQ(found(u"book = 66 and body like '*'"_s), 0);
    EXPECT_EQ(found(u"book = 66 and body = ''"_s), 0);
    EXPECT_EQ(found(u"book = 66 and body < 'z'"_s), 0);
    EXPECT_EQ(found(u"note like '*'"_s), 1);
    EXPECT_EQ(found(u"note like \"*Light*\""_s), 5);
}

TEST_F(Find, doesNotFindWhatAnotherWildcardWouldStandFor) {
    EXPECT_EQ(found(u"body like '%'"_s), 0);
    EXPECT_EQ(found(u"body like '*l_ght*'"_s), 0);
    EXPECT_EQ(found(u"body like '*l?ght*'"_s), 0);
    EXPECT_EQ(found(u"body like '*[l]ight*'"_s), 0);
}

TEST_F(Find, clearsNoMatchBeforeTheCriteriaAreRead) {
    EXPECT_EQ(found(u"ID = 99"_s), 0);
    EXPECT_EQ(errorOf([&] { cursor.FindNext(u"body like '*it's*'"_s); }), Error::SyntaxInCriteria);
    EXPECT_FALSE(cursor.NoMatch());
    EXPECT_EQ(rowOf(cursor), 1);
}

TEST_F(Find, byAFieldThatTheTableLacksIsAnError) {
    EXPECT_EQ(errorOf([&] { cursor.FindFirst(u"rowid = 1"_s); }), Error::ItemNotFound);
    EXPECT_EQ(errorOf([&] { cursor.FindFirst(u"ID = 1 or nobody = 1"_s); }), Error::ItemNotFound);
}

TEST_F(Find, needsADynaset) {
    Recordset table = openByVerse();
    EXPECT_EQ(errorOf([&] { table.FindFirst(u"ID = 1"_s); }), Error::NotSupportedHere);
    EXPECT_EQ(errorOf([&] { table.FindNext(u"not read"_s); }), Error::NotSupportedHere);
}

TEST_F(Find, goesOnFromTheRowFound) {
    cursor.FindFirst(u"ID = 3"_s);
    cursor.MoveNext();
    EXPECT_EQ(rowOf(cursor), 4);
    cursor.FindPrevious(u"ID > 0"_s);
    EXPECT_EQ(rowOf(cursor), 3);
    cursor.MovePrevious();
    EXPECT_EQ(rowOf(cursor), 2);
}

TEST_F(Find, atTheEndsOfTheRowNumbersEndsToo) {
    makeFile(
        {"CREATE TABLE t (id INTEGER PRIMARY KEY)",
         "INSERT INTO t VALUES (9223372036854775807), (-9223372036854775808)"},
        u"ends.mdb"_s);
    Recordset ends = openDynaset(u"t"_s, u"ends.mdb"_s);
    ends.FindPrevious(u"id < 0"_s);
    EXPECT_TRUE(ends.NoMatch());
    ends.FindNext(u"id > 0"_s);
    EXPECT_FALSE(ends.NoMatch());
    ends.FindNext(u"id > 0"_s);
    EXPECT_TRUE(ends.NoMatch());
    ends.MoveNext();
    EXPECT_TRUE(ends.Eof());
}

TEST_F(Find, columnsWithOddNamesAreFoundOrRefusedButNeverRun) {
    makeFile(
        {"CREATE TABLE t (\"ro\"\"wid\" INTEGER, rowid TEXT, \"größe\" TEXT)",
         "INSERT INTO t VALUES (7, 'x', 'Σ')"},
        u"odd.mdb"_s);
    Recordset odd = openDynaset(u"t"_s, u"odd.mdb"_s);
    odd.FindFirst(u"rowid = 'X' and GRÖSSE = 'ς'"_s.replace(u"SS"_s, u"ẞ"_s));
    EXPECT_FALSE(odd.NoMatch());
    EXPECT_EQ(odd.Fields(u"RO\"WID"_s).Value().toInt(), 7);
}

} // namespace
