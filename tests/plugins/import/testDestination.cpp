// The file that an import makes, and what happens where it cannot be made.
#include "plugins/import/ImportFixture.h"
#include "plugins/jet/JetFixture.h"

#include "Importing.h"
#include "Interruption.h"
#include "store/StoreTuning.h"
#include "support/OtherProgram.h"

#include <QRegularExpression>
#include <csignal>
#include <functional>
#include <sstream>
#include <utility>

#ifdef Q_OS_LINUX
#include "plugins/jet/SmallDisk.h"

#include <sys/wait.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

const QString storeHelper = QStringLiteral(LUMENVIA_STORE_HELPER);

QList<SampleVerse> manyVerses() {
    QList<SampleVerse> verses;
    for (int chapter = 1; chapter <= 50; ++chapter) {
        for (int verse = 1; verse <= 40; ++verse)
            verses.append(plainVerse(
                u"Gen"_s, QString::number(chapter), QString::number(verse),
                u"word "_s.repeated(30)));
    }
    return verses;
}

// A terminal whose user does something each time the bar is shown from a percentage on.
class WatchedTerminal final : public std::stringbuf {
public:
    WatchedTerminal(int percent, std::function<void()> action)
        : m_percent(percent)
        , m_action(std::move(action)) {}

    int sync() override {
        static const QRegularExpression percentage(u"(\\d+) %$"_s);
        const auto match = percentage.match(QString::fromStdString(str()).last(10));
        if (match.hasMatch() && match.captured(1).toInt() >= m_percent)
            m_action();
        return 0;
    }

private:
    int m_percent;
    std::function<void()> m_action;
};

// Beside a program that has the old file open.
class SharedFileTest : public ImportTest {
protected:
    void SetUp() override { makeOldFile(); }

    QStringList noteTask() const { return {u"note"_s, path, u"theirs"_s}; }

    // Imports many verses, and does something once when the bar has come to the percentage.
    bool importAnd(int percent, const std::function<void()>& action) {
        bool isDone = false;
        std::ostringstream outStream;
        WatchedTerminal terminal(percent, [&] {
            if (!std::exchange(isDone, true))
                action();
        });
        std::ostream errorStream(&terminal);
        Console console{outStream, errorStream, true};
        const QString text = writeSample(sampleFormat("tabs"), manyVerses(), source.path());
        const bool made = ::importText({text, u"DARBY.mdb"_s, folder.path()}, console);
        EXPECT_TRUE(isDone);
        return made;
    }

    // What another program reports that writes a note at the percentage.
    QString reportOfWriteAt(int percent) {
        QString report;
        EXPECT_TRUE(importAnd(percent, [&] {
            OtherProgram program(storeHelper, noteTask());
            program.readLine();
            EXPECT_TRUE(program.endsWell());
            report = program.readLine();
        }));
        return report;
    }

    QVariant note() const { return verseField(path, {1, 1, 1}, u"note"_s); }
};

class InterruptedImportTest : public FormatTest {
protected:
    void TearDown() override { const InterruptHandler forgetsTheSignal; }
};

} // namespace

TEST_F(ImportTest, theFileIsFoundInAnyCase) {
    makeOldFile();
    ASSERT_TRUE(QFile::rename(path, folder.filePath(u"darby.MDB"_s)));
    ASSERT_TRUE(importText("Gen\t1\t1\tNew\n"));
    EXPECT_EQ(filesIn(folder.path()), QStringList(u"darby.MDB"_s));
    EXPECT_EQ(verseField(folder.filePath(u"darby.MDB"_s), {1, 1, 1}, u"note"_s), u"mine"_s);
    EXPECT_TRUE(out.contains(u"1 note(s) carried over\n"_s)) << qPrintable(out);
}

TEST_F(ImportTest, notesOfTheOldFileGoOnAndThoseWithoutAVerseAreNamed) {
    makeOldFile();
    ASSERT_TRUE(importText("Exod\t1\t1\tNow\n"));
    EXPECT_TRUE(out.contains(
        u"1 note(s) without a verse in this text, kept in tblKeptNotes: Genesis 1:1\n"_s))
        << qPrintable(out);
    ASSERT_TRUE(importText("Gen\t1\t1\tNew\n"));
    EXPECT_EQ(verseField(path, {1, 1, 1}, u"note"_s), u"mine"_s);
}

TEST_F(ImportTest, theFolderIsMade) {
    std::ostringstream stream;
    Console console{stream, stream};
    const QString text = writeFile(source.path(), u"t.txt"_s, "Gen\t1\t1\tIn\n");
    EXPECT_TRUE(::importText({text, u"YLT.mdb"_s, folder.path() + u"\\new\\deep"_s}, console));
    EXPECT_EQ(filesIn(folder.filePath(u"new/deep"_s)), QStringList(u"YLT.mdb"_s));
}

TEST_F(ImportTest, aFileWhoseNotesCannotBeReadStays) {
    const QByteArray damaged(5000, 'x');
    writeFile(folder.path(), u"DARBY.mdb"_s, damaged);
    EXPECT_FALSE(importText("Gen\t1\t1\tIn\n"));
    EXPECT_TRUE(errors.contains(u"stays as it is, since its notes cannot be read"_s))
        << qPrintable(errors);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), damaged);
}

TEST_F(ImportTest, aJetFileThatWasConvertedIsNotSaidToStayAsItIs) {
    JetFixture fixture(JetVersion::Jet4);
    fixture.add({u"tblOther"_s, {{u"ID"_s, JetType::Long}}, {}});
    writeFile(folder.path(), u"DARBY.mdb"_s, fixture.bytes());
    EXPECT_FALSE(importText("Gen\t1\t1\tNew\n"));
    EXPECT_TRUE(errors.contains(
        u"DARBY.mdb was converted, with its original beside it, and is not replaced, since its "
        u"notes cannot be read: "_s))
        << qPrintable(errors);
    EXPECT_EQ(filesIn(folder.path()), QStringList({u"DARBY.mdb"_s, u"DARBY.mdb.jet"_s}));
}

TEST_F(SharedFileTest, aNoteThatIsWrittenWhileTheSourceIsReadIsCarriedOver) {
    EXPECT_EQ(reportOfWriteAt(30), u"update: done"_s);
    EXPECT_EQ(note(), u"theirs"_s);
}

TEST_F(SharedFileTest, nobodyWritesIntoTheOldFileWhileTheNewOneIsWritten) {
    for (const int percent : {55, 95}) {
        const QString report = reportOfWriteAt(percent);
        EXPECT_TRUE(report.contains(u"in use by another program"_s)) << qPrintable(report);
    }
    EXPECT_EQ(note(), u"mine"_s);
}

TEST_F(SharedFileTest, aProgramThatHasTheOldFileOpenIsToldThatItWasReplaced) {
    OtherProgram program(storeHelper, noteTask());
    ASSERT_EQ(program.readLine(), u"open"_s);
    ASSERT_TRUE(importText("Gen\t1\t1\tNew\n"));
    EXPECT_TRUE(program.endsWell());
    const QString report = program.readLine();
    EXPECT_TRUE(report.contains(u"was replaced"_s)) << qPrintable(report);
    EXPECT_EQ(note(), u"mine"_s);
}

#ifdef Q_OS_UNIX

TEST_F(SharedFileTest, aFileThatStaysLockedStays) {
    const StoreTuning before = storeTuning();
    storeTuning().busyTimeout = std::chrono::milliseconds(20);
    OtherProgram holder(storeHelper, {u"lock"_s, path});
    ASSERT_EQ(holder.readLine(), u"locked"_s);
    EXPECT_FALSE(importText("Gen\t1\t1\tNew\n"));
    EXPECT_TRUE(errors.contains(u"in use by another program"_s)) << qPrintable(errors);
    EXPECT_TRUE(holder.endsWell());
    storeTuning() = before;
    expectOldFile();
}

TEST_F(SharedFileTest, aKillLeavesTheFileThatWasThere) {
    for (const int percent : {30, 60, 95}) {
        const pid_t child = fork();
        if (child == 0) {
            importAnd(percent, [] { std::raise(SIGKILL); });
            _exit(0);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status)) << percent;
        EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 Old"_s));
        EXPECT_EQ(note(), u"mine"_s);
    }
    ASSERT_TRUE(importText("Gen\t1\t1\tNew\n")) << qPrintable(errors);
    EXPECT_EQ(note(), u"mine"_s);
}

#endif

// While the source is read and while the file is written.
INSTANTIATE_TEST_SUITE_P(
    Each, InterruptedImportTest, testing::ValuesIn(sampleFormats()), formatName);

TEST_P(InterruptedImportTest, leavesTheFileThatWasThere) {
    makeOldFile();
    const QString text = writeSample(GetParam(), manyVerses(), source.path());
    for (const int percent : {0, 30, 60, 90}) {
        const InterruptHandler interrupts;
        std::ostringstream outStream;
        WatchedTerminal terminal(percent, [] { std::raise(SIGINT); });
        std::ostream errorStream(&terminal);
        Console console{outStream, errorStream, true};
        EXPECT_FALSE(::importText({text, u"DARBY.mdb"_s, folder.path()}, console));
        EXPECT_TRUE(QString::fromStdString(terminal.str())
                        .endsWith(u"Stopped. What was not finished has left nothing behind.\n"_s));
        expectOldFile();
    }
}

#ifdef Q_OS_LINUX

namespace {

// With the old file on a disk of its own.
class DiskTest : public ImportTest {
protected:
    void SetUp() override {
        if (!disk.mount(256))
            GTEST_SKIP() << "no right to mount";
        makeOldFile();
        ASSERT_TRUE(QFile::copy(path, disk.folder() + u"/DARBY.mdb"_s));
    }

    void expectFailure(const QList<SampleVerse>& verses) {
        std::ostringstream outStream;
        std::ostringstream errorStream;
        Console console{outStream, errorStream};
        const QString text = writeSample(sampleFormat("tabs"), verses, source.path());
        EXPECT_FALSE(::importText({text, u"DARBY.mdb"_s, disk.folder()}, console));
        EXPECT_TRUE(
            QString::fromStdString(errorStream.str()).startsWith(u"DARBY.mdb was not made: "_s))
            << errorStream.str();
        EXPECT_EQ(filesIn(disk.folder()), QStringList(u"DARBY.mdb"_s));
        const QString file = disk.folder() + u"/DARBY.mdb"_s;
        EXPECT_EQ(verseField(file, {1, 1, 1}, u"note"_s), u"mine"_s);
    }

    SmallDisk disk;
};

} // namespace

TEST_F(DiskTest, aFullOneKeepsTheFileThatWasThere) {
    expectFailure(manyVerses());
}

TEST_F(DiskTest, aWriteProtectedOneKeepsTheFileThatWasThere) {
    ASSERT_TRUE(disk.protect());
    expectFailure({plainVerse(u"Gen"_s, u"1"_s, u"1"_s, u"New"_s)});
}

#endif
