// Translations that are not as they should be, though the file is sound: what can be read is read,
// and the rest is an error that names the file.
#include "StoreFixture.h"

namespace {

constexpr char UsualIndex[] = "CREATE INDEX VerseIndex ON tblMain (book, chapter, verse)";

class OddTable : public StoreFixture {
protected:
    // The operation is refused with a text that names the file and holds these words.
    void expectRefusal(
        const std::function<void()>& operation, Error::Number number, const QString& words) {
        EXPECT_EQ(errorOf(operation), number);
        const QString text = errorTextOf(operation);
        EXPECT_TRUE(text.contains(u"test.mdb"_s) && text.contains(words)) << text.toStdString();
    }
};

TEST_F(OddTable, withoutTheTableCannotBeOpened) {
    makeFile({"CREATE TABLE other (ID INTEGER PRIMARY KEY)"});
    for (const RecordsetType type : {dbOpenTable, dbOpenDynaset, dbOpenSnapshot})
        expectRefusal(
            [&] { openDatabase().OpenRecordset(u"tblMain"_s, type); }, Error::NotATable,
            u"tblMain"_s);
}

TEST_F(OddTable, withoutTheIndexIsWalkedInRowOrder) {
    makeFile(
        {"CREATE TABLE tblMain (ID INTEGER PRIMARY KEY, book INTEGER, chapter INTEGER, verse "
         "INTEGER, body TEXT, note TEXT)",
         "INSERT INTO tblMain VALUES (1,2,1,1,'b',NULL),(2,1,1,1,'a',NULL)"});
    Recordset cursor = openDatabase().OpenRecordset(u"tblMain"_s, dbOpenTable);
    expectRefusal([&] { cursor.Index(u"VerseIndex"_s); }, Error::NotAnIndex, u"VerseIndex"_s);
    EXPECT_EQ(errorOf([&] { cursor.Seek(u"="_s, 1, 1, 1); }), Error::NotSupportedHere);
    EXPECT_EQ(walk(cursor), (std::vector<qlonglong>{1, 2})) << "the refusal changes nothing";
}

TEST_F(OddTable, thatLacksColumnsOffersTheOthers) {
    makeFile(
        {"CREATE TABLE tblMain (ID INTEGER PRIMARY KEY, book INTEGER, chapter INTEGER, verse "
         "INTEGER)",
         UsualIndex, "INSERT INTO tblMain VALUES (1,40,1,1)"});
    Recordset cursor = openByVerse();
    cursor.Seek(u"="_s, 40, 1, 1);
    EXPECT_EQ(rowOf(cursor), 1);
    expectRefusal([&] { cursor.Fields(4); }, Error::ItemNotFound, u"field 4"_s);
    expectRefusal([&] { cursor.Fields(u"note"_s); }, Error::ItemNotFound, u"\"note\""_s);
    Recordset dynaset = openDynaset();
    expectRefusal([&] { dynaset.FindFirst(u"Body like '*a*'"_s); }, Error::ItemNotFound, u"Body"_s);
    EXPECT_EQ(rowOf(dynaset), 1);
}

TEST_F(OddTable, whoseIndexHasFewerColumnsTakesFewerValues) {
    makeFile(
        {"CREATE TABLE tblMain (ID INTEGER PRIMARY KEY, book INTEGER, chapter INTEGER)",
         "CREATE INDEX VerseIndex ON tblMain (book, chapter)",
         "INSERT INTO tblMain VALUES (1,40,1)"});
    Recordset cursor = openByVerse();
    EXPECT_EQ(errorOf([&] { cursor.Seek(u"="_s, 40, 1, 1); }), Error::InvalidPropertyValue);
    cursor.Seek(u"="_s, 40, 1);
    EXPECT_EQ(rowOf(cursor), 1);
}

TEST_F(OddTable, withSurplusColumnsIsReadByOrdinalAndByName) {
    makeFile(
        {"CREATE TABLE tblMain (ID INTEGER PRIMARY KEY, book INTEGER, chapter INTEGER, verse "
         "INTEGER, body TEXT, note TEXT, footnote TEXT, 'a b' BLOB)",
         UsualIndex, "INSERT INTO tblMain VALUES (1,1,1,1,'text','a note','below',NULL)"});
    Recordset cursor = openByVerse();
    EXPECT_EQ(cursor.Fields(5).Value(), QVariant(u"a note"_s));
    EXPECT_EQ(cursor.Fields(u"Footnote"_s).Value(), QVariant(u"below"_s));
    cursor.Edit();
    cursor.Fields(u"note"_s) = u"another"_s;
    cursor.Update();
    EXPECT_EQ(cursor.Fields(6).Value(), QVariant(u"below"_s));
}

TEST_F(OddTable, withNullInEveryFieldIsWalkedWrittenAndNeverFound) {
    makeFile(
        {"CREATE TABLE tblMain (ID INTEGER, book INTEGER, chapter INTEGER, verse INTEGER, body "
         "TEXT, note TEXT)",
         UsualIndex, "INSERT INTO tblMain DEFAULT VALUES", "INSERT INTO tblMain DEFAULT VALUES"});
    Recordset cursor = openByVerse();
    for (int field = 0; field < 6; ++field)
        EXPECT_FALSE(cursor.Fields(field).Value().isValid()) << field;
    EXPECT_EQ(walk(cursor).size(), 2u);
    EXPECT_EQ(walkBack(cursor).size(), 2u);
    cursor.Seek(u"="_s, 0, 0, 0);
    EXPECT_TRUE(cursor.NoMatch());
    Recordset dynaset = openDynaset();
    for (const QString& criteria :
         {u"ID = 0"_s, u"book < 40"_s, u"book > 39"_s, u"body like '*'"_s, u"note = ''"_s,
          u"body < 'z' or note > ''"_s}) {
        dynaset.FindFirst(criteria);
        EXPECT_TRUE(dynaset.NoMatch()) << criteria.toStdString();
    }
    dynaset.Edit();
    dynaset.Fields(5) = u"a note"_s;
    dynaset.Update();
    dynaset.FindFirst(u"note like '*NOTE*'"_s);
    EXPECT_FALSE(dynaset.NoMatch());
}

TEST_F(OddTable, withBooksOutsideTheBibleKeepsThemInOrder) {
    makeTranslation({{99, 1, 1}, {0, 1, 1}, {66, 1, 1}, {-1, 1, 1}, {1, 1, 1}});
    Recordset cursor = openByVerse();
    EXPECT_EQ(walk(cursor), (std::vector<qlonglong>{4, 2, 5, 3, 1}));
    cursor.Seek(u"="_s, 0, 1, 1);
    EXPECT_EQ(rowOf(cursor), 2);
    cursor.Seek(u"="_s, u"99"_s, 1, 1);
    EXPECT_EQ(rowOf(cursor), 1);
    cursor.MoveNext();
    EXPECT_TRUE(cursor.Eof());
    Recordset old = openDynaset(u"SELECT * FROM tblMain WHERE BOOK < 40"_s);
    EXPECT_EQ(walk(old), (std::vector<qlonglong>{2, 4, 5}));
}

TEST_F(OddTable, withTextsInColumnsOfNumbersGivesThemAsTexts) {
    makeFile(
        {"CREATE TABLE tblMain (ID INTEGER PRIMARY KEY, book INTEGER, chapter INTEGER, verse "
         "INTEGER, body TEXT, note TEXT)",
         UsualIndex,
         "INSERT INTO tblMain VALUES (1,'Genesis','one',x'FF',x'00FF',7),(2,1,1,1,'text',NULL)"});
    Recordset cursor = openByVerse();
    EXPECT_EQ(walk(cursor), (std::vector<qlonglong>{2, 1}));
    cursor.MoveLast();
    EXPECT_EQ(cursor.Fields(1).Value(), QVariant(u"Genesis"_s));
    EXPECT_EQ(cursor.Fields(3).Value(), QVariant(QByteArray("\xFF")));
    EXPECT_EQ(cursor.Fields(5).Value(), QVariant(u"7"_s));
    Recordset dynaset = openDynaset();
    dynaset.FindFirst(u"book = \"GENESIS\" and chapter like 'O*'"_s);
    EXPECT_EQ(rowOf(dynaset), 1);
}

} // namespace
