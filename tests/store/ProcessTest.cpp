// Several programs on one file: no write is lost, also when one of them is killed.
#include "StoreFixture.h"
#include "support/OtherProgram.h"

#include <QDir>
#include <QElapsedTimer>
#include <random>

namespace {

const QString storeHelper = QStringLiteral(LUMENVIA_STORE_HELPER);

class Processes : public StoreFixture {
protected:
    Processes() { storeTuning().busyTimeout = std::chrono::seconds(60); }
};

QString number(qsizetype value) {
    return QString::number(value);
}

TEST_F(Processes, whatTwoProgramsAddIsAllThere) {
    makeTranslation({{1, 1, 1}});
    constexpr int Rows = 150;
    OtherProgram one(storeHelper, {u"add"_s, path(), u"1"_s, number(Rows)});
    OtherProgram two(storeHelper, {u"add"_s, path(), u"2"_s, number(Rows)});
    EXPECT_TRUE(one.endsWell());
    EXPECT_TRUE(two.endsWell());
    Recordset cursor = openDynaset();
    EXPECT_EQ(walk(cursor).size(), 2u * Rows + 1);
    for (const int who : {1, 2}) {
        for (int row = 1; row <= Rows; ++row) {
            cursor.FindFirst(u"verse = %1"_s.arg(who * 1000000 + row));
            ASSERT_FALSE(cursor.NoMatch());
        }
    }
}

TEST_F(Processes, whatTwoProgramsWriteIntoOneRowIsAllThere) {
    constexpr int Rows = 150;
    makeTranslation(std::vector<Verse>(Rows, Verse{0, 0, 0}));
    OtherProgram one(storeHelper, {u"fill"_s, path(), u"chapter"_s, number(Rows)});
    OtherProgram two(storeHelper, {u"fill"_s, path(), u"verse"_s, number(Rows)});
    EXPECT_TRUE(one.endsWell());
    EXPECT_TRUE(two.endsWell());
    Recordset cursor = openDynaset();
    for (cursor.MoveFirst(); !cursor.Eof(); cursor.MoveNext()) {
        EXPECT_EQ(cursor.Fields(2).Value(), cursor.Fields(0).Value());
        EXPECT_EQ(cursor.Fields(3).Value(), cursor.Fields(0).Value());
    }
}

TEST_F(Processes, aCursorSeesAtOnceWhatAnotherProgramReportsAsWritten) {
    makeTranslation({{1, 1, 1}});
    Recordset cursor = openDynaset();
    cursor.Fields(0).Value();
    OtherProgram writer(storeHelper, {u"add"_s, path(), u"1"_s, u"50"_s});
    for (int row = 1; row <= 50; ++row) {
        ASSERT_EQ(writer.readLine(), number(row));
        cursor.MoveLast();
        EXPECT_GE(cursor.Fields(3).Value().toInt(), 1000000 + row);
    }
}

// Kills the writer in the middle of its work, again and again on the same file.
TEST_F(Processes, whatWasReportedAsWrittenSurvivesAKill) {
    makeTranslation({{1, 1, 1}});
    std::mt19937 random(9);
    for (int round = 0; round < 25; ++round) {
        OtherProgram writer(storeHelper, {u"count"_s, path()});
        for (int lines = static_cast<int>(random() % 40); lines >= 0; --lines)
            ASSERT_FALSE(writer.readLine().isEmpty());
        const int last = writer.kill().last().toInt();
        Recordset cursor = openDynaset();
        const int written = cursor.Fields(5).Value().toString().section(u' ', 0, 0).toInt();
        EXPECT_TRUE(written == last || written == last + 1) << written << " after " << last;
        cursor.Edit();
        cursor.Fields(5) = u"mine"_s;
        cursor.Update();
        EXPECT_EQ(cursor.Fields(5).Value(), QVariant(u"mine"_s));
    }
    EXPECT_EQ(
        QDir(QFileInfo(path()).path()).entryList(QDir::Files | QDir::Hidden),
        QStringList{u"test.mdb"_s});
}

#ifdef Q_OS_UNIX

TEST_F(Processes, aFileThatStaysLockedIsAnErrorAfterTheTimeAndWorksAfterwards) {
    storeTuning().busyTimeout = std::chrono::milliseconds(20);
    makeTranslation({{1, 1, 1, u"body"_s}});
    Recordset cursor = openDynaset();
    OtherProgram holder(storeHelper, {u"lock"_s, path()});
    ASSERT_EQ(holder.readLine(), u"locked"_s);
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(errorOf([&] { openDatabase(); }), Error::StorageFailure);
    EXPECT_EQ(errorOf([&] { cursor.MoveNext(); }), Error::StorageFailure);
    EXPECT_EQ(errorOf([&] { cursor.FindFirst(u"ID = 1"_s); }), Error::StorageFailure);
    EXPECT_LT(timer.elapsed(), 10000);
    const QString text = errorTextOf([&] { openDatabase(); });
    EXPECT_TRUE(text.contains(u"test.mdb"_s) && text.contains(u"in use"_s)) << text.toStdString();
    EXPECT_TRUE(holder.endsWell());
    cursor.FindFirst(u"ID = 1"_s);
    EXPECT_EQ(rowOf(cursor), 1);
}

TEST_F(Processes, anUpdateOnALockedFileCanBeTriedAgain) {
    storeTuning().busyTimeout = std::chrono::milliseconds(20);
    makeTranslation({{1, 1, 1, u"body"_s}});
    Recordset cursor = openDynaset();
    cursor.Edit();
    cursor.Fields(4) = u"new"_s;
    {
        OtherProgram holder(storeHelper, {u"lock"_s, path()});
        ASSERT_EQ(holder.readLine(), u"locked"_s);
        EXPECT_EQ(errorOf([&] { cursor.Update(); }), Error::StorageFailure);
        EXPECT_TRUE(holder.endsWell());
    }
    cursor.Update();
    EXPECT_EQ(cursor.Fields(4).Value(), QVariant(u"new"_s));
}

TEST_F(Processes, aLockThatIsReleasedInTimeIsWaitedFor) {
    makeTranslation({{1, 1, 1, u"body"_s}});
    Recordset cursor = openDynaset();
    OtherProgram holder(storeHelper, {u"lock"_s, path(), u"200"_s});
    ASSERT_EQ(holder.readLine(), u"locked"_s);
    cursor.Edit();
    cursor.Fields(4) = u"new"_s;
    cursor.Update();
    EXPECT_EQ(cursor.Fields(4).Value(), QVariant(u"new"_s));
}

class Rights : public StoreFixture {
protected:
    using Permissions = QFileDevice::Permissions;

    const Permissions reading = QFileDevice::ReadOwner | QFileDevice::ReadGroup
                                | QFileDevice::ReadOther | QFileDevice::ExeOwner
                                | QFileDevice::ExeGroup | QFileDevice::ExeOther;
    const Permissions writing =
        reading | QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther;

    // What a user meets who has these rights on the folder and on the file in it.
    QString reportWith(Permissions folder, Permissions file) {
        makeTranslation({{1, 1, 1, u"the body"_s}});
        const QString folderPath = QFileInfo(path()).path();
        QFile::setPermissions(path(), file);
        QFile::setPermissions(folderPath, folder);
        OtherProgram user(storeHelper, {u"look"_s, path()});
        EXPECT_TRUE(user.endsWell());
        QFile::setPermissions(folderPath, writing);
        return user.kill().join(u'\n');
    }

    void expectReadOnly(const QString& report) {
        EXPECT_TRUE(report.contains(u"open: done\nthe body\nread: done"_s));
        for (const QString& write : {u"edit"_s, u"add"_s, u"delete"_s})
            EXPECT_TRUE(report.contains(write + u": %1 "_s.arg(Error::NotUpdatable)));
        EXPECT_TRUE(report.contains(u"reading only"_s)) << report.toStdString();
    }
};

TEST_F(Rights, aFileThatMayNotBeWrittenIsOpenedForReading) {
    expectReadOnly(reportWith(writing, reading));
}

TEST_F(Rights, aFileInAFolderThatMayNotBeWrittenIsOpenedForReading) {
    expectReadOnly(reportWith(reading, writing));
}

TEST_F(Rights, aFileThatMayNotBeReadIsAnError) {
    const QString report = reportWith(writing, {});
    EXPECT_TRUE(report.contains(u"open: %1 "_s.arg(Error::StorageFailure)));
    EXPECT_TRUE(report.contains(u"cannot be opened"_s)) << report.toStdString();
}

TEST_F(Rights, withRightsEverythingIsDone) {
    EXPECT_FALSE(reportWith(writing, writing).contains(QString::number(Error::NotUpdatable)));
}

#endif

} // namespace
