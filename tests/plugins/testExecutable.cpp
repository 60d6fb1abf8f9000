// The program itself, as a shell starts it.
#include "plugins/ToolProcess.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Executable, makesAFileWithoutABarWhereThereIsNoTerminal) {
    QTemporaryDir folder;
    const ToolRun outcome = startTool({u"make"_s, u"topics"_s, u"--to"_s, folder.filePath(u"ñ"_s)});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_TRUE(outcome.out.contains(u"ñ/topics.mdb: 0 rows, "_s)) << qPrintable(outcome.out);
    EXPECT_TRUE(outcome.errors.isEmpty()) << qPrintable(outcome.errors);
    EXPECT_TRUE(QFileInfo::exists(folder.filePath(u"ñ/topics.mdb"_s)));
}

TEST(Executable, tellsWrongUseAndFailureApart) {
    QTemporaryDir folder;
    EXPECT_EQ(startTool({u"make"_s, u"vulgate"_s}).exitCode, 2);
    EXPECT_EQ(
        startTool({u"make"_s, u"kjv"_s, u"--from"_s, folder.path(), u"--to"_s, folder.path()})
            .exitCode,
        1);
}

TEST(Executable, printsNothingButTheVersion) {
    const ToolRun outcome = startTool({u"--version"_s});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_TRUE(outcome.out.startsWith(u"lumenvia-plugins "_s)) << qPrintable(outcome.out);
    EXPECT_EQ(outcome.out.count(u'\n'), 1);
}
