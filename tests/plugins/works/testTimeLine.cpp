#include "plugins/works/WorkFixture.h"

#include "Console.h"
#include "Progress.h"
#include "basic/Error.h"
#include "makers/TimeLineMaker.h"

#include <sstream>

using namespace Qt::StringLiterals;

namespace {

class TimeLine : public WorkFixture {
protected:
    QString write(const QString& name, const QByteArray& content) {
        QFile file(modules.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    void makeOf(const QByteArray& before, const QByteArray& after) {
        Console console{stream, stream};
        Progress progress(console, u"time"_s);
        TimeLineMaker maker(write(u"bc.txt"_s, before), write(u"ad.txt"_s, after));
        maker.make({path, false}, progress);
    }

    std::ostringstream stream;
    const QString path = folder.filePath(u"time.mdb"_s);
};

const QVariant Null;

} // namespace

TEST_F(TimeLine, rowsStandInTheOrderOfTimeWithIdsWithoutGaps) {
    makeOf("5\tb\n4004\ta\n", "70\td\n1\tc\n");
    EXPECT_EQ(
        rowsOf(path, u"tblBC"_s),
        QList<QVariantList>({{1LL, u"4004"_s, u"a"_s}, {2LL, u"5"_s, u"b"_s}, {3LL, Null, Null}}));
    EXPECT_EQ(
        rowsOf(path, u"tblAD"_s),
        QList<QVariantList>({{1LL, u"1"_s, u"c"_s}, {2LL, u"70"_s, u"d"_s}, {3LL, Null, Null}}));
}

TEST_F(TimeLine, eventsOfAYearShareOneRow) {
    makeOf("5\ta.\n5\tb\n5\tc\n", "1\td\n");
    EXPECT_EQ(rowsOf(path, u"tblBC"_s).at(0), QVariantList({1LL, u"5"_s, u"a. b; c"_s}));
    EXPECT_EQ(rowsOf(path, u"tblBC"_s).size(), 2);
}

TEST_F(TimeLine, noSearchFindsTheClosingRow) {
    makeOf("5\ta\n", "1\td\n");
    Database database = DBEngine::CreateWorkspace(u"Test"_s, u"Admin"_s, {}).OpenDatabase(path);
    Recordset rows = database.OpenRecordset(u"tblAD"_s);
    for (const QString& criteria : {u"year like \"**\""_s, u"event like \"**\""_s}) {
        rows.MoveFirst();
        rows.FindNext(criteria);
        EXPECT_TRUE(rows.NoMatch()) << qPrintable(criteria);
    }
}

TEST_F(TimeLine, aYearThatIsNoNumberIsAnErrorAndMakesNothing) {
    for (const QByteArray line : {"about 70\tx\n", "-5\tx\n", "0\tx\n"}) {
        try {
            makeOf("5\ta\n", "1\tb\n" + line);
            ADD_FAILURE() << line.constData();
        } catch (const Error& error) {
            EXPECT_TRUE(error.text().startsWith(u"ad.txt:2: "_s)) << qPrintable(error.text());
        }
    }
    EXPECT_TRUE(filesIn(folder.path()).isEmpty());
}

TEST_F(TimeLine, theProjectsOwnYearsAreWellFormed) {
    for (const QString& table : {u"tblBC"_s, u"tblAD"_s}) {
        QList<QVariantList> rows = made(u"time"_s, u"time.mdb"_s, table);
        ASSERT_GT(rows.size(), 50);
        EXPECT_TRUE(rows.takeLast().at(1).isNull());
        for (qsizetype row = 0; row < rows.size(); ++row) {
            EXPECT_EQ(rows[row][0], row + 1);
            EXPECT_GT(rows[row][1].toString().toInt(), 0);
            EXPECT_GT(rows[row][2].toString().size(), 10);
        }
        ASSERT_TRUE(QFile::remove(path));
    }
}
