// The tool as a program of its own, on Jet databases: it bounds what its process may take.
#include "plugins/ToolProcess.h"
#include "plugins/jet/JetTest.h"

#include <QDir>
#include <QFile>

namespace {

using JetCommands = JetTest;

} // namespace

TEST_F(JetCommands, convertPrintsThePathToOpenAndNothingElse) {
    write(verseFile());
    const ToolRun outcome = startTool({u"convert"_s, path()});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, path() + u'\n');
    EXPECT_EQ(outcome.errors, QString());
    EXPECT_EQ(read(u"kjv.mdb.jet"_s), verseFile());
    EXPECT_EQ(rowsOf(path(), u"tblMain"_s).size(), verseTable().rows.size());
}

TEST_F(JetCommands, convertLeavesADataFileAsItIs) {
    write(verseFile());
    startTool({u"convert"_s, path()});
    const QByteArray before = read();
    const ToolRun outcome = startTool({u"convert"_s, path()});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, path() + u'\n');
    EXPECT_EQ(read(), before);
    EXPECT_EQ(leftovers(), QStringList(u"kjv.mdb.jet"_s));
}

TEST_F(JetCommands, convertSaysWhatIsWrongAndTouchesNothing) {
    const QByteArray damaged = verseFile().left(9000);
    write(damaged);
    const ToolRun outcome = startTool({u"convert"_s, path()});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, QString());
    EXPECT_TRUE(outcome.errors.contains(u"kjv.mdb"_s)) << qPrintable(outcome.errors);
    EXPECT_EQ(read(), damaged);
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(JetCommands, checkTellsWhatAConversionWouldGive) {
    write(verseFile());
    const ToolRun outcome = startTool({u"check"_s, path()});
    EXPECT_TRUE(outcome.out.contains(
        u"  a Jet database, which the program converts when it first opens it\n"
        u"  a translation\n  4 verses"_s))
        << qPrintable(outcome.out);
    EXPECT_EQ(read(), verseFile());
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(JetCommands, checkSaysWhatIsWrongWithADamagedOne) {
    write(verseFile().left(9000));
    const ToolRun outcome = startTool({u"check"_s, path()});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_TRUE(outcome.out.contains(u"  wrong: "_s)) << qPrintable(outcome.out);
}

TEST_F(JetCommands, importTakesAJetDatabaseWithItsNotes) {
    write(verseFile());
    const QString folder = path(u"texts"_s);
    const ToolRun outcome =
        startTool({u"import"_s, path(), u"--as"_s, u"kjv"_s, u"--to"_s, folder});
    EXPECT_EQ(outcome.exitCode, 0) << qPrintable(outcome.errors);
    QStringList notes;
    for (const QVariantList& row : rowsOf(folder + u"/KJV.mdb"_s, u"tblMain"_s)) {
        if (!row.at(5).isNull())
            notes.append(row.at(5).toString());
    }
    EXPECT_FALSE(notes.isEmpty());
    EXPECT_EQ(read(), verseFile());
}

TEST_F(JetCommands, importOfADamagedOneLeavesNothing) {
    write(verseFile().left(9000));
    const QString folder = path(u"texts"_s);
    const ToolRun outcome =
        startTool({u"import"_s, path(), u"--as"_s, u"kjv"_s, u"--to"_s, folder});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_FALSE(outcome.errors.isEmpty());
    EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList());
}
