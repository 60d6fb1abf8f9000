// The program itself, as a shell starts it.
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Outcome {
    int exitCode;
    QString out;
    QString errors;
};

Outcome start(const QStringList& arguments) {
    QProcess process;
    process.start(QStringLiteral(LUMENVIA_PLUGINS), arguments);
    EXPECT_TRUE(process.waitForFinished()) << qPrintable(process.errorString());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {
        process.exitCode(), QString::fromLocal8Bit(process.readAllStandardOutput()),
        QString::fromLocal8Bit(process.readAllStandardError())};
}

} // namespace

TEST(Executable, makesAFileWithoutABarWhereThereIsNoTerminal) {
    QTemporaryDir folder;
    const Outcome outcome = start({u"make"_s, u"topics"_s, u"--to"_s, folder.filePath(u"ñ"_s)});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_TRUE(outcome.out.contains(u"ñ/topics.mdb: 0 rows, "_s)) << qPrintable(outcome.out);
    EXPECT_TRUE(outcome.errors.isEmpty()) << qPrintable(outcome.errors);
    EXPECT_TRUE(QFileInfo::exists(folder.filePath(u"ñ/topics.mdb"_s)));
}

TEST(Executable, tellsWrongUseAndFailureApart) {
    QTemporaryDir folder;
    EXPECT_EQ(start({u"make"_s, u"vulgate"_s}).exitCode, 2);
    EXPECT_EQ(
        start({u"make"_s, u"kjv"_s, u"--from"_s, folder.path(), u"--to"_s, folder.path()}).exitCode,
        1);
}

TEST(Executable, printsNothingButTheVersion) {
    const Outcome outcome = start({u"--version"_s});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_TRUE(outcome.out.startsWith(u"lumenvia-plugins "_s)) << qPrintable(outcome.out);
    EXPECT_EQ(outcome.out.count(u'\n'), 1);
}
