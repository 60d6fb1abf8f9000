#include "plugins/DataFiles.h"
#include "plugins/SmallModule.h"

#include "CommandLine.h"
#include "Interruption.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <sstream>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

// A terminal that sends a signal when the bar has come to a percentage.
class ImpatientTerminal final : public std::stringbuf {
public:
    ImpatientTerminal(int signal, int percent)
        : m_signal(signal)
        , m_percent(percent) {}

    int sync() override {
        const QString shown = QString::fromStdString(str());
        static const QRegularExpression percentage(u"(\\d+) %$"_s);
        const QRegularExpressionMatch match = percentage.match(shown);
        if (match.hasMatch() && match.captured(1).toInt() >= m_percent)
            std::raise(m_signal);
        return 0;
    }

private:
    int m_signal;
    int m_percent;
};

// Ctrl+C, the end of the session, and a terminal that is closed.
constexpr int Signals[] = {
    SIGINT,
    SIGTERM,
#ifdef SIGHUP
    SIGHUP,
#endif
};

// A signal, and the percentage at which it comes.
class InterruptionTest : public testing::TestWithParam<std::tuple<int, int>> {
protected:
    void SetUp() override {
        SmallModule module;
        module.entries = {
            {"Gen 1:1", "In"}, {"Ezek 1:1", "Now"}, {"Matt 1:1", "The"}, {"Rev 22:21", "Amen"}};
        module.writeTo(modules.path());
    }

    int makeUntilTheSignal() {
        const auto [signal, percent] = GetParam();
        return makeUntil(signal, percent);
    }

    int makeUntil(int signal, int percent) {
        const InterruptHandler interrupts;
        std::ostringstream out;
        ImpatientTerminal terminal(signal, percent);
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
INSTANTIATE_TEST_SUITE_P(
    AtEachStage, InterruptionTest,
    testing::Combine(testing::ValuesIn(Signals), testing::Values(0, 30, 60, 80)));

TEST_P(InterruptionTest, leavesNothingBehindAndBeginsNothingMore) {
    EXPECT_EQ(makeUntilTheSignal(), 1);
    EXPECT_TRUE(filesIn(folder.path()).isEmpty());
    EXPECT_TRUE(shown.endsWith(u"Stopped. What was not finished has left nothing behind.\n"_s))
        << qPrintable(shown);
}

TEST_P(InterruptionTest, leavesTheFileThatWasThere) {
    const int never = 1000;
    ASSERT_EQ(makeUntil(SIGINT, never), 0);
    const QString path = folder.filePath(u"KJV.mdb"_s);
    setNote(path, {1, 1, 1}, u"mine"_s);
    EXPECT_EQ(makeUntilTheSignal(), 1);
    EXPECT_EQ(verseField(path, {1, 1, 1}, u"note"_s), u"mine"_s);
    EXPECT_EQ(filesIn(folder.path()), QStringList({u"KJV.mdb"_s, u"topics.mdb"_s}));
}

#ifdef SIGHUP

// As nohup has it.
TEST(InterruptHandlerTest, leavesASignalIgnoredThatWas) {
    const auto before = std::signal(SIGHUP, SIG_IGN);
    {
        const InterruptHandler interrupts;
        std::raise(SIGHUP);
        EXPECT_NO_THROW(checkInterrupt());
    }
    EXPECT_EQ(std::signal(SIGHUP, before), SIG_IGN);
}

#endif

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
