// Looking over a whole data file.
#include "StoreFixture.h"

#include "store/DataFileInspection.h"

#include <QFile>

namespace {

using Inspection = StoreFixture;

} // namespace

TEST_F(Inspection, tellsTablesColumnsIndexesAndRows) {
    makeTranslation({{1, 1, 1, u"In"_s}, {1, 1, 2, u"And"_s}});
    const QList<TableSummary> tables = DataFileInspection(path()).tables();
    ASSERT_EQ(tables.size(), 1);
    EXPECT_EQ(tables[0].name, u"tblMain"_s);
    EXPECT_EQ(
        tables[0].columns,
        QStringList({u"ID"_s, u"book"_s, u"chapter"_s, u"verse"_s, u"body"_s, u"note"_s}));
    EXPECT_EQ(tables[0].indexes, QStringList(u"VerseIndex"_s));
    EXPECT_EQ(tables[0].rows, 2);
}

TEST_F(Inspection, leavesOutTheEnginesOwnTables) {
    DataFileWriter writer(path());
    createTopicsSchema(writer); // numbers its rows, which takes a table of the engine
    writer.finish();
    QStringList names;
    for (const TableSummary& table : DataFileInspection(path()).tables())
        names.append(table.name);
    EXPECT_EQ(names, QStringList({u"tblTopicName"_s, u"tblData"_s}));
}

TEST_F(Inspection, anOddTableNameIsNoStatement) {
    DataFileWriter writer(path());
    writer.execute("CREATE TABLE \"a\"\"; DROP TABLE b; --\" (x)");
    writer.execute("CREATE TABLE b (y)");
    writer.finish();
    const QList<TableSummary> tables = DataFileInspection(path()).tables();
    ASSERT_EQ(tables.size(), 2);
    EXPECT_EQ(tables[0].name, u"a\"; DROP TABLE b; --"_s);
}

TEST_F(Inspection, findsNothingWrongWithASoundFile) {
    makeTranslation({{1, 1, 1, u"In"_s}});
    EXPECT_EQ(DataFileInspection(path()).damage(), QStringList());
}

TEST_F(Inspection, findsAPageThatWasOverwritten) {
    std::vector<Verse> verses;
    for (int verse = 1; verse <= 2000; ++verse)
        verses.push_back({1, 1, verse, u"In the beginning "_s.repeated(4)});
    makeTranslation(verses);
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(file.size() / 2 / 16384 * 16384);
    file.write(QByteArray(16384, '\x5A'));
    file.close();
    EXPECT_FALSE(DataFileInspection(path()).damage().isEmpty());
}

TEST_F(Inspection, aFileOfAnotherKindIsRefused) {
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no database at all");
    file.close();
    EXPECT_EQ(errorOf([&] { DataFileInspection inspection(path()); }), Error::NotADatabase);
}
