// Lifetimes: handles that stand on nothing, handles on what is closed, and what closes with what.
#include "StoreFixture.h"

#include <QDir>
#include <QFile>

namespace {

class Close : public StoreFixture {
protected:
    Close() { makeTranslation({{1, 1, 1}}); }
};

// Every operation of a cursor but Close.
std::vector<std::function<void()>> operationsOf(Recordset& cursor) {
    return {
        [&] { cursor.Index(u"VerseIndex"_s); },
        [&] { cursor.Seek(u"="_s, 1); },
        [&] { cursor.NoMatch(); },
        [&] { cursor.MoveFirst(); },
        [&] { cursor.MoveLast(); },
        [&] { cursor.MoveNext(); },
        [&] { cursor.MovePrevious(); },
        [&] { cursor.Bof(); },
        [&] { cursor.Eof(); },
        [&] { cursor.FindFirst(u"ID = 1"_s); },
        [&] { cursor.FindNext(u"ID = 1"_s); },
        [&] { cursor.FindPrevious(u"ID = 1"_s); },
        [&] { cursor.Fields(0); },
        [&] { cursor.Fields(u"ID"_s); },
        [&] { cursor.Edit(); },
        [&] { cursor.AddNew(); },
        [&] { cursor.Update(); },
        [&] { cursor.Delete(); },
        [&] { cursor.RecordCount(); },
        [&] { cursor.Close(); },
    };
}

void expectEveryOperation(Recordset& cursor, Error::Number number) {
    for (const auto& operation : operationsOf(cursor))
        EXPECT_EQ(errorOf(operation), number);
}

TEST_F(Close, aHandleMadeByDefaultStandsOnNothing) {
    Recordset cursor;
    expectEveryOperation(cursor, Error::ObjectNotSet);
    EXPECT_EQ(errorOf([] { Database().Close(); }), Error::ObjectNotSet);
    EXPECT_EQ(errorOf([] { Database().OpenRecordset(u"t"_s); }), Error::ObjectNotSet);
    EXPECT_EQ(errorOf([] { Workspace().Close(); }), Error::ObjectNotSet);
    EXPECT_EQ(errorOf([] { Workspace().OpenDatabase(u"x"_s); }), Error::ObjectNotSet);
}

TEST_F(Close, aClosedCursorOffersNothing) {
    Recordset cursor = openDynaset();
    Recordset copy = cursor;
    Field field = cursor.Fields(0);
    cursor.Close();
    expectEveryOperation(cursor, Error::AlreadyClosed);
    expectEveryOperation(copy, Error::AlreadyClosed);
    EXPECT_EQ(errorOf([&] { field.Value(); }), Error::AlreadyClosed);
    EXPECT_EQ(errorOf([&] { field.Name(); }), Error::AlreadyClosed);
    EXPECT_EQ(errorOf([&] { field = 1; }), Error::AlreadyClosed);
}

TEST_F(Close, aDatabaseClosesItsCursors) {
    Database database = openDatabase();
    Recordset cursor = database.OpenRecordset(u"tblMain"_s);
    database.Close();
    expectEveryOperation(cursor, Error::AlreadyClosed);
    EXPECT_EQ(errorOf([&] { database.Close(); }), Error::AlreadyClosed);
    EXPECT_EQ(errorOf([&] { database.OpenRecordset(u"tblMain"_s); }), Error::AlreadyClosed);
}

TEST_F(Close, aWorkspaceClosesItsDatabasesAndTheirCursors) {
    Workspace workspace = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
    Database database = workspace.OpenDatabase(path());
    Recordset cursor = database.OpenRecordset(u"tblMain"_s);
    workspace.Close();
    expectEveryOperation(cursor, Error::AlreadyClosed);
    EXPECT_EQ(errorOf([&] { database.Close(); }), Error::AlreadyClosed);
    EXPECT_EQ(errorOf([&] { workspace.OpenDatabase(path()); }), Error::AlreadyClosed);
    EXPECT_EQ(errorOf([&] { workspace.Close(); }), Error::AlreadyClosed);
}

TEST_F(Close, aWorkspaceReachesACursorWhoseDatabaseHandleIsGone) {
    Workspace workspace = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
    Recordset cursor = workspace.OpenDatabase(path()).OpenRecordset(u"tblMain"_s);
    EXPECT_EQ(rowOf(cursor), 1);
    workspace.Close();
    expectEveryOperation(cursor, Error::AlreadyClosed);
}

TEST_F(Close, aClosedCursorLeavesTheOthersOpen) {
    Database database = openDatabase();
    Recordset first = database.OpenRecordset(u"tblMain"_s);
    Recordset second = database.OpenRecordset(u"tblMain"_s);
    first.Close();
    EXPECT_EQ(rowOf(second), 1);
    database.Close();
}

#ifdef Q_OS_LINUX
qsizetype openFiles(const QString& path) {
    qsizetype count = 0;
    const QDir descriptors(u"/proc/self/fd"_s);
    for (const QString& name : descriptors.entryList(QDir::Files | QDir::System))
        count += QFile::symLinkTarget(descriptors.filePath(name)) == path;
    return count;
}

TEST_F(Close, theFileIsClosedWithTheLastHandle) {
    const QString file = QFileInfo(path()).canonicalFilePath();
    {
        Recordset cursor = openByVerse();
        cursor.MoveNext();
        EXPECT_EQ(openFiles(file), 1);
        Field field = cursor.Fields(0);
        cursor = Recordset();
        EXPECT_EQ(openFiles(file), 1) << "the field still holds the cursor";
    }
    EXPECT_EQ(openFiles(file), 0);
}

TEST_F(Close, theFileIsClosedByCloseWhoeverStillHoldsAHandle) {
    const QString file = QFileInfo(path()).canonicalFilePath();
    Workspace workspace = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
    Database database = workspace.OpenDatabase(path());
    Recordset cursor = database.OpenRecordset(u"SELECT * FROM tblMain WHERE ID = 1"_s);
    cursor.Edit();
    cursor.Fields(1) = 7;
    cursor.Update();
    EXPECT_EQ(openFiles(file), 1);
    database.Close();
    EXPECT_EQ(openFiles(file), 0);
}
#endif

} // namespace
