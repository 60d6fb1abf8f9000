// The dynaset of a SELECT text.
#include "StoreFixture.h"

namespace {

class Select : public StoreFixture {
protected:
    Select() {
        makeTranslation(
            {{40, 1, 1, u"one light"_s},
             {1, 1, 1, u"no match"_s},
             {66, 1, 1, u"two Lights"_s},
             {1, 2, 1, u"LIGHT and bread"_s},
             {2, 1, 1, u"bread"_s}});
    }

    std::vector<qlonglong> rowsOfQuery(const QString& text) { return walk(openDynaset(text)); }

    const QString lights = u"SELECT * FROM tblMain WHERE (((body like \"*light*\")) )"_s;
};

TEST_F(Select, holdsTheMatchingRowsInRowOrder) {
    EXPECT_EQ(rowsOfQuery(lights), (std::vector<qlonglong>{1, 3, 4}));
    EXPECT_EQ(rowsOfQuery(lights + u" AND ((BOOK < 40)) "_s), (std::vector<qlonglong>{4}));
    EXPECT_EQ(rowsOfQuery(lights + u" AND ((BOOK > 39)) "_s), (std::vector<qlonglong>{1, 3}));
    EXPECT_EQ(
        rowsOfQuery(lights + u" AND ((BOOK > 39))  AND ((BOOK=66)) "_s),
        (std::vector<qlonglong>{3}));
    EXPECT_EQ(rowsOfQuery(u"SELECT * FROM tblMain"_s), (std::vector<qlonglong>{1, 2, 3, 4, 5}));
}

TEST_F(Select, joinsTwoWords) {
    const QString head = u"SELECT * FROM tblMain WHERE (((body like \"*light*\")) "_s;
    const QString tail = u" ((BODY LIKE \"*bread*\"))) "_s;
    EXPECT_EQ(rowsOfQuery(head + u" AND "_s + tail), (std::vector<qlonglong>{4}));
    EXPECT_EQ(rowsOfQuery(head + u" OR "_s + tail), (std::vector<qlonglong>{1, 3, 4, 5}));
}

TEST_F(Select, withoutAMatchIsAnEmptyCursor) {
    Recordset cursor = openDynaset(u"SELECT * FROM tblMain WHERE body like '*none*'"_s);
    EXPECT_TRUE(cursor.Bof());
    EXPECT_TRUE(cursor.Eof());
    EXPECT_EQ(cursor.RecordCount(), 0);
    EXPECT_EQ(errorOf([&] { cursor.MoveFirst(); }), Error::NoCurrentRecord);
}

TEST_F(Select, findsWithinItsRowsAlone) {
    Recordset cursor = openDynaset(lights);
    cursor.FindFirst(u"ID = 3"_s);
    EXPECT_EQ(rowOf(cursor), 3);
    cursor.FindFirst(u"ID = 2"_s);
    EXPECT_TRUE(cursor.NoMatch());
    cursor.FindNext(u"book > 0"_s);
    EXPECT_EQ(rowOf(cursor), 4);
    cursor.FindNext(u"book > 0"_s);
    EXPECT_TRUE(cursor.NoMatch()) << "row 5 does not belong to it";
    cursor.FindPrevious(u"book < 40"_s);
    EXPECT_TRUE(cursor.NoMatch());
}

TEST_F(Select, countsUpToTheFarthestRow) {
    Recordset cursor = openDynaset(lights);
    EXPECT_EQ(cursor.RecordCount(), 1);
    cursor.MoveLast();
    EXPECT_EQ(cursor.RecordCount(), 3);
}

TEST_F(Select, keepsRowsThatMatchNoMoreAndPassesOverDeletedOnes) {
    Recordset cursor = openDynaset(lights);
    Recordset other = openDynaset();
    other.FindFirst(u"ID = 3"_s);
    other.Edit();
    other.Fields(4) = u"dark"_s;
    other.Update();
    other.FindFirst(u"ID = 1"_s);
    other.Delete();
    EXPECT_EQ(walk(cursor), (std::vector<qlonglong>{3, 4}));
    EXPECT_EQ(walkBack(cursor), (std::vector<qlonglong>{4, 3}));
    EXPECT_EQ(cursor.RecordCount(), 2);
    cursor.FindFirst(u"body = 'dark'"_s);
    EXPECT_EQ(rowOf(cursor), 3);
}

TEST_F(Select, allOfWhoseRowsWereDeletedIsEmpty) {
    Recordset cursor = openDynaset(u"SELECT * FROM tblMain WHERE ID = 2"_s);
    Recordset other = openDynaset();
    other.FindFirst(u"ID = 2"_s);
    other.Delete();
    EXPECT_EQ(errorOf([&] { cursor.Fields(0).Value(); }), Error::RecordDeleted);
    EXPECT_EQ(errorOf([&] { cursor.MoveFirst(); }), Error::NoCurrentRecord);
    EXPECT_TRUE(cursor.Bof() && cursor.Eof());
}

TEST_F(Select, isUpdatable) {
    Recordset cursor = openDynaset(lights);
    cursor.MoveNext();
    cursor.Edit();
    cursor.Fields(u"note"_s) = u"seen"_s;
    cursor.Update();
    EXPECT_EQ(cursor.Fields(5).Value(), QVariant(u"seen"_s));
    cursor.Delete();
    cursor.MoveNext();
    EXPECT_EQ(rowOf(cursor), 4);
    EXPECT_EQ(walk(openDynaset()), (std::vector<qlonglong>{1, 2, 4, 5}));
}

TEST_F(Select, takesUpARowThatIsAddedThroughIt) {
    Recordset cursor = openDynaset(lights);
    cursor.AddNew();
    cursor.Fields(1) = 3;
    cursor.Update();
    EXPECT_EQ(walk(cursor), (std::vector<qlonglong>{1, 3, 4, 6}));
}

TEST_F(Select, followsARowWhoseNumberItChanges) {
    Recordset cursor = openDynaset(lights);
    cursor.Edit();
    cursor.Fields(0) = 10;
    cursor.Update();
    EXPECT_EQ(rowOf(cursor), 10);
    Recordset other = openDynaset();
    other.AddNew();
    other.Fields(0) = 1;
    other.Update();
    EXPECT_EQ(walk(cursor), (std::vector<qlonglong>{3, 4, 10})) << "the new row 1 is not in it";
}

TEST_F(Select, ofAnUnknownTableFieldOrDialectIsAnError) {
    Database database = openDatabase();
    const auto errorOfOpening = [&](const QString& text, RecordsetType type = dbOpenDynaset) {
        return errorOf([&] { database.OpenRecordset(text, type); });
    };
    EXPECT_EQ(errorOfOpening(u"SELECT * FROM tblNone"_s), Error::NotATable);
    EXPECT_EQ(errorOfOpening(u"SELECT * FROM sqlite_master"_s), Error::NotATable);
    EXPECT_EQ(errorOfOpening(u"SELECT * FROM tblMain WHERE x = 1"_s), Error::ItemNotFound);
    EXPECT_EQ(errorOfOpening(u"SELECT ID FROM tblMain"_s), Error::SyntaxInCriteria);
    EXPECT_EQ(errorOfOpening(lights, dbOpenTable), Error::NotSupportedHere);
}

TEST_F(Select, byASnapshotCannotBeWritten) {
    for (const QString& source : {lights, u"tblMain"_s}) {
        Recordset cursor = openDatabase().OpenRecordset(source, dbOpenSnapshot);
        EXPECT_EQ(errorOf([&] { cursor.Edit(); }), Error::NotUpdatable);
        EXPECT_EQ(errorOf([&] { cursor.AddNew(); }), Error::NotUpdatable);
        EXPECT_EQ(errorOf([&] { cursor.Delete(); }), Error::NotUpdatable);
        cursor.FindNext(u"body like '*light*'"_s);
        EXPECT_EQ(rowOf(cursor), 3);
    }
}

} // namespace
