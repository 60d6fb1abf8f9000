#include "plugins/DataFiles.h"
#include "plugins/SmallModule.h"

#include "CommandLine.h"
#include "Interruption.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <sstream>

using namespace Qt::StringLiterals;

namespace {

// A terminal whose user presses Ctrl+C when the bar has come to a percentage.
class ImpatientTerminal final : public std::stringbuf {
public:
    explicit ImpatientTerminal(int percent)
        : m_percent(percent) {}

    int sync() override {
        const QString shown = QString::fromStdString(str());
        static const QRegularExpression percentage(u"(\\d+) %$"_s);
        const QRegularExpressionMatch match = percentage.match(shown);
        if (match.hasMatch() && match.captured(1).toInt() >= m_percent)
            std::raise(SIGINT);
        return 0;
    }

private:
    int m_percent;
};

class InterruptionTest : public testing::TestWithParam<int> {
protected:
    void SetUp() override {
        SmallModule module;
        module.entries = {
            {"Gen 1:1", "In"}, {"Ezek 1:1", "Now"}, {"Matt 1:1", "The"}, {"Rev 22:21", "Amen"}};
        module.writeTo(modules.path());
    }

    int makeUntil(int percent) {
        const InterruptHandler interrupts;
        std::ostringstream out;
        ImpatientTerminal terminal(percent);
        std::ostream errors(&terminal);
        Console console{out, errors, true};
        const int exitCode = runCommandLine(
            {u"make"_s, u"kjv"_s, u"topics"_s, u"--force"_s, u"--from"_s, modules.path(), u"--to"_s,
             folder.path()},
            console);
        shown = QString::fromStdString(terminal.str());
        return exitCode;
    }

    QTemporaryDir modules;
    QTemporaryDir folder;
    QString shown;
};

} // namespace

// While the source is read and while the file is written.
INSTANTIATE_TEST_SUITE_P(AtEachStage, InterruptionTest, testing::Values(0, 30, 60, 80));

TEST_P(InterruptionTest, leavesNothingBehindAndBeginsNothingMore) {
    EXPECT_EQ(makeUntil(GetParam()), 1);
    EXPECT_TRUE(filesIn(folder.path()).isEmpty());
    EXPECT_TRUE(shown.endsWith(u"Stopped. What was not finished has left nothing behind.\n"_s))
        << qPrintable(shown);
}

TEST_P(InterruptionTest, leavesTheFileThatWasThere) {
    const int never = 1000;
    ASSERT_EQ(makeUntil(never), 0);
    const QString path = folder.filePath(u"KJV.mdb"_s);
    setNote(path, {1, 1, 1}, u"mine"_s);
    EXPECT_EQ(makeUntil(GetParam()), 1);
    EXPECT_EQ(verseField(path, {1, 1, 1}, u"note"_s), u"mine"_s);
    EXPECT_EQ(filesIn(folder.path()), QStringList({u"KJV.mdb"_s, u"topics.mdb"_s}));
}

TEST(ProgressBar, isTakenAwayAtTheEnd) {
    std::ostringstream out;
    std::ostringstream errors;
    Console console{out, errors, true};
    QTemporaryDir folder;
    EXPECT_EQ(runCommandLine({u"make"_s, u"topics"_s, u"--to"_s, folder.path()}, console), 0);
    const QString shown = QString::fromStdString(errors.str());
    EXPECT_TRUE(shown.contains(u"topics.mdb ["_s)) << qPrintable(shown);
    EXPECT_TRUE(shown.endsWith(u" \r"_s)) << qPrintable(shown);
}
