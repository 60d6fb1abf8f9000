// Fields and the write cycle: Edit, AddNew, Update, Delete.
#include "StoreFixture.h"

#include <QDir>
#include <QFile>
#include <cmath>

namespace {

class Edit : public StoreFixture {
protected:
    Edit() { makeTranslation({{1, 1, 1, u"one"_s}, {1, 1, 2, u"two"_s, u"note"_s}, {1, 1, 3}}); }

    QByteArray fileContent() const {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TEST_F(Edit, fieldsAreReadByOrdinalAndByNameWithoutCase) {
    Recordset cursor = openByVerse();
    EXPECT_EQ(cursor.Fields(4).Value(), QVariant(u"one"_s));
    EXPECT_EQ(cursor.Fields(u"BODY"_s).Value(), QVariant(u"one"_s));
    EXPECT_EQ(cursor.Fields(u"BODY"_s).Name(), u"body"_s);
    EXPECT_EQ(cursor.Fields(1).Value(), QVariant(1LL));
    EXPECT_FALSE(cursor.Fields(5).Value().isValid()) << "Null is a value without a value";
}

TEST_F(Edit, fieldsThatTheCursorLacksAreAnError) {
    Recordset cursor = openByVerse();
    EXPECT_EQ(errorOf([&] { cursor.Fields(-1); }), Error::ItemNotFound);
    EXPECT_EQ(errorOf([&] { cursor.Fields(6); }), Error::ItemNotFound);
    EXPECT_EQ(errorOf([&] { cursor.Fields(u"nobody"_s); }), Error::ItemNotFound);
}

TEST_F(Edit, valuesOfEveryKindComeBackAsTheyWere) {
    makeFile({"CREATE TABLE t (a, b INTEGER, c REAL, d TEXT, e BLOB)"}, u"kinds.mdb"_s);
    Recordset cursor = openDynaset(u"t"_s, u"kinds.mdb"_s);
    const QString text = QChar(30) + u"005 010 A\0B \u05D0 𐐀"_s;
    const QVariantList values = {
        QVariant(), 9007199254740993LL, 0.1, text, QByteArray("\0\xFF", 2)};
    cursor.AddNew();
    for (int field = 0; field < 5; ++field)
        cursor.Fields(field) = values[field];
    cursor.Update();
    cursor.MoveFirst();
    for (int field = 0; field < 5; ++field)
        EXPECT_EQ(cursor.Fields(field).Value(), values[field]) << field;
}

TEST_F(Edit, aColumnOfNumbersTakesNumericTextsAndNoOthers) {
    Recordset cursor = openByVerse();
    cursor.Edit();
    cursor.Fields(1) = u" 12 "_s;
    EXPECT_EQ(cursor.Fields(1).Value(), QVariant(12LL));
    for (const QVariant& value :
         {QVariant(u"x"_s), QVariant(u""_s), QVariant(u"1x"_s), QVariant(u"nan"_s),
          QVariant(std::nan("")), QVariant(QStringList())})
        EXPECT_EQ(errorOf([&] { cursor.Fields(1) = value; }), Error::DataTypeConversion);
    EXPECT_EQ(cursor.Fields(1).Value(), QVariant(12LL)) << "a refused value changes nothing";
}

TEST_F(Edit, aColumnOfTextsTakesNumbersAsTheirText) {
    Recordset cursor = openByVerse();
    cursor.Edit();
    cursor.Fields(5) = 12;
    cursor.Update();
    EXPECT_EQ(cursor.Fields(5).Value(), QVariant(u"12"_s));
}

TEST_F(Edit, writesTheAssignedFieldsOfTheCurrentRow) {
    Recordset cursor = openByVerse();
    cursor.Seek(u"="_s, 1, 1, 3);
    cursor.Edit();
    cursor.Fields(5) = u"new"_s;
    EXPECT_EQ(cursor.Fields(5).Value(), QVariant(u"new"_s)) << "read back before Update";
    cursor.Update();
    EXPECT_EQ(rowOf(cursor), 3);
    EXPECT_EQ(cursor.Fields(5).Value(), QVariant(u"new"_s));
    Recordset again = openByVerse();
    again.MoveLast();
    EXPECT_EQ(again.Fields(5).Value(), QVariant(u"new"_s));
    EXPECT_FALSE(again.Fields(4).Value().isValid());
}

TEST_F(Edit, nullCanBeWritten) {
    Recordset cursor = openByVerse();
    cursor.Seek(u"="_s, 1, 1, 2);
    cursor.Edit();
    cursor.Fields(5) = QVariant();
    cursor.Update();
    EXPECT_FALSE(cursor.Fields(5).Value().isValid());
}

TEST_F(Edit, oneFieldIsAssignedToAnotherByValue) {
    Recordset cursor = openByVerse();
    Recordset other = openByVerse();
    cursor.Edit();
    cursor.Fields(5) = other.Fields(4);
    cursor.Update();
    EXPECT_EQ(cursor.Fields(5).Value(), QVariant(u"one"_s));
}

TEST_F(Edit, ofEqualValuesWritesNothing) {
    const QByteArray before = fileContent();
    Recordset cursor = openByVerse();
    cursor.MoveNext();
    cursor.Edit();
    cursor.Fields(5) = u"note"_s;
    cursor.Fields(1) = u"1"_s;
    cursor.Update();
    cursor.Edit();
    cursor.Update();
    EXPECT_EQ(fileContent(), before);
    cursor.Edit();
    cursor.Fields(5) = u"Note"_s;
    cursor.Update();
    EXPECT_NE(fileContent(), before);
}

TEST_F(Edit, withoutUpdateIsDroppedByEveryMove) {
    Recordset cursor = openDynaset();
    const std::vector<std::function<void()>> moves = {
        [&] { cursor.MoveFirst(); }, [&] { cursor.MoveNext(); }, [&] { cursor.MovePrevious(); },
        [&] { cursor.FindFirst(u"ID = 1"_s); }, [&] { cursor.FindNext(u"ID = 9"_s); }};
    for (const auto& move : moves) {
        cursor.Edit();
        cursor.Fields(4) = u"dropped"_s;
        move();
        EXPECT_EQ(errorOf([&] { cursor.Update(); }), Error::UpdateWithoutEdit);
        EXPECT_NE(cursor.Fields(4).Value(), QVariant(u"dropped"_s));
    }
}

TEST_F(Edit, withoutUpdateIsDroppedBySeekAndIndexToo) {
    Recordset cursor = openByVerse();
    const std::vector<std::function<void()>> jumps = {
        [&] { cursor.Seek(u"="_s, 1, 1, 1); }, [&] { cursor.Index(u"VerseIndex"_s); },
        [&] { cursor.MoveLast(); }, [&] { cursor.Seek(u"="_s, 9, 9, 9); }};
    for (const auto& jump : jumps) {
        cursor.Edit();
        cursor.Fields(4) = u"dropped"_s;
        jump();
        EXPECT_EQ(errorOf([&] { cursor.Update(); }), Error::UpdateWithoutEdit);
    }
    EXPECT_EQ(openByVerse().Fields(4).Value(), QVariant(u"one"_s));
}

TEST_F(Edit, anotherEditDropsWhatTheFirstAssigned) {
    Recordset cursor = openByVerse();
    cursor.Edit();
    cursor.Fields(4) = u"dropped"_s;
    cursor.Edit();
    EXPECT_EQ(cursor.Fields(4).Value(), QVariant(u"one"_s));
}

TEST_F(Edit, assigningAndUpdateNeedACycle) {
    Recordset cursor = openByVerse();
    EXPECT_EQ(errorOf([&] { cursor.Fields(4) = u"x"_s; }), Error::UpdateWithoutEdit);
    EXPECT_EQ(errorOf([&] { cursor.Update(); }), Error::UpdateWithoutEdit);
    cursor.Edit();
    cursor.Update();
    EXPECT_EQ(errorOf([&] { cursor.Update(); }), Error::UpdateWithoutEdit);
}

TEST_F(Edit, ofTheKeyMovesTheRowAndTheCursorWithIt) {
    Recordset cursor = openByVerse();
    cursor.Edit();
    cursor.Fields(1) = 2;
    cursor.Update();
    EXPECT_EQ(rowOf(cursor), 1);
    cursor.MoveNext();
    EXPECT_TRUE(cursor.Eof());
    EXPECT_EQ(walk(cursor), (std::vector<qlonglong>{2, 3, 1}));
}

TEST_F(Edit, ofTheRowsNumberIsFollowed) {
    Recordset cursor = openDynaset();
    cursor.Edit();
    cursor.Fields(0) = 20;
    cursor.Update();
    EXPECT_EQ(rowOf(cursor), 20);
    cursor.MovePrevious();
    EXPECT_EQ(rowOf(cursor), 3);
}

TEST_F(Edit, thatTheTableRefusesIsAnErrorAndTheCycleGoesOn) {
    Recordset cursor = openDynaset();
    cursor.Edit();
    cursor.Fields(0) = 2;
    EXPECT_EQ(errorOf([&] { cursor.Update(); }), Error::StorageFailure);
    EXPECT_EQ(cursor.Fields(0).Value(), QVariant(2LL));
    cursor.Fields(0) = 9;
    cursor.Update();
    EXPECT_EQ(rowOf(cursor), 9);
    cursor.Edit();
    cursor.Fields(0) = QVariant();
    EXPECT_EQ(errorOf([&] { cursor.Update(); }), Error::StorageFailure);
}

TEST_F(Edit, addNewStartsWithNullsAndLeavesTheCurrentRow) {
    Recordset cursor = openByVerse();
    cursor.MoveLast();
    cursor.AddNew();
    EXPECT_FALSE(cursor.Fields(4).Value().isValid());
    cursor.Fields(1) = 1;
    cursor.Fields(2) = 1;
    cursor.Fields(3) = 2;
    cursor.Update();
    EXPECT_EQ(rowOf(cursor), 3);
    EXPECT_EQ(walk(cursor), (std::vector<qlonglong>{1, 2, 4, 3}));
}

TEST_F(Edit, addNewWithoutAnyValueAddsARowOfNulls) {
    Recordset cursor = openDynaset();
    cursor.AddNew();
    cursor.Update();
    cursor.MoveLast();
    EXPECT_EQ(rowOf(cursor), 4);
    EXPECT_FALSE(cursor.Fields(1).Value().isValid());
}

TEST_F(Edit, aNumberThatTheDatabaseGaveIsNeverGivenAgain) {
    DataFileWriter writer(path(u"topics.mdb"_s));
    createTopicsSchema(writer);
    writer.finish();
    Recordset topics = openDynaset(u"tblTopicName"_s, u"topics.mdb"_s);
    const auto add = [&](const QString& name) {
        topics.AddNew();
        topics.Fields(u"topicname"_s) = name;
        topics.Update();
        topics.MoveLast();
        return topics.Fields(u"unique"_s).Value().toInt();
    };
    EXPECT_EQ(add(u"faith"_s), 1);
    EXPECT_EQ(add(u"hope"_s), 2);
    topics.Delete();
    EXPECT_EQ(add(u"love"_s), 3);
    topics.FindFirst(u"topicname = \"LOVE\""_s);
    EXPECT_EQ(topics.Fields(0).Value(), QVariant(3LL));
}

TEST_F(Edit, deleteLeavesNoCurrentRowUntilAMove) {
    Recordset cursor = openByVerse();
    cursor.MoveNext();
    cursor.Delete();
    EXPECT_FALSE(cursor.Bof() || cursor.Eof());
    EXPECT_EQ(errorOf([&] { cursor.Fields(0).Value(); }), Error::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { cursor.Delete(); }), Error::NoCurrentRecord);
    EXPECT_EQ(errorOf([&] { cursor.Edit(); }), Error::NoCurrentRecord);
    cursor.MoveNext();
    EXPECT_EQ(rowOf(cursor), 3);
    cursor.MovePrevious();
    EXPECT_EQ(rowOf(cursor), 1);
}

TEST_F(Edit, afterDeleteThePreviousRowIsThatOfTheDeletedOne) {
    Recordset cursor = openDynaset();
    cursor.MoveNext();
    cursor.Delete();
    cursor.MovePrevious();
    EXPECT_EQ(rowOf(cursor), 1);
}

TEST_F(Edit, allRowsCanBeDeletedInAWalk) {
    Recordset cursor = openDynaset();
    for (cursor.MoveFirst(); !cursor.Eof(); cursor.MoveNext())
        cursor.Delete();
    EXPECT_TRUE(cursor.Bof() && cursor.Eof());
    EXPECT_EQ(errorOf([&] { cursor.MoveFirst(); }), Error::NoCurrentRecord);
}

TEST_F(Edit, leavesNoFilesBeside) {
    Recordset cursor = openByVerse();
    cursor.Edit();
    cursor.Fields(5) = u"x"_s;
    cursor.Update();
    EXPECT_EQ(
        QDir(QFileInfo(path()).path()).entryList(QDir::Files | QDir::Hidden),
        QStringList{u"test.mdb"_s});
}

} // namespace
