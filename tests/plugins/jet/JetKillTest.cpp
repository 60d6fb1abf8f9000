// Converters that die at any step, and several at once.
#include "plugins/jet/JetTest.h"
#include "plugins/jet/SmallDisk.h"

#include <QDir>
#include <QFile>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/inotify.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class JetKill : public JetTest {
protected:
    // Runs it in a process of its own; the wait status of its end.
    template <class Work>
    static int inProcess(Work&& work) {
        const pid_t child = start(std::forward<Work>(work));
        return end(child);
    }

    template <class Work>
    static pid_t start(Work&& work) {
        const pid_t child = fork();
        if (child == 0) {
            bool isDone = false;
            attempt([&] {
                work();
                isDone = true;
            });
            _exit(isDone ? 0 : 1);
        }
        return child;
    }

    static int end(pid_t child) {
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        return status;
    }

    // The steps of a whole conversion, in their order.
    QStringList steps() const {
        QStringList names;
        JetConversionOptions watching = options();
        watching.onStep = [&](const char* step) { names.append(QString::fromLatin1(step)); };
        write(verseFile());
        convertJetFile(path(), watching);
        return names;
    }

    bool anOriginalExists() const {
        for (const QString& name : leftovers() + QStringList(u"kjv.mdb"_s)) {
            if (read(name) == verseFile())
                return true;
        }
        return false;
    }
};

TEST_F(JetKill, aKillAtAnyStepLosesNothingAndHindersNobody) {
    const QStringList all = steps();
    EXPECT_EQ(
        all, QStringList(
                 {u"locked"_s, u"begun"_s, u"copied"_s, u"written"_s, u"ready"_s, u"kept"_s,
                  u"replaced"_s}));
    for (const QString& killedAt : all) {
        for (const QString& name : leftovers())
            QFile::remove(path(name));
        write(verseFile());
        JetConversionOptions deadly = options();
        deadly.onStep = [&](const char* step) {
            if (killedAt == QLatin1String(step))
                raise(SIGKILL);
        };
        const int status = inProcess([&] { convertJetFile(path(), deadly); });
        ASSERT_TRUE(WIFSIGNALED(status)) << killedAt.toStdString();
        const bool isOld = read() == verseFile();
        EXPECT_EQ(isOld, killedAt != u"replaced"_s);
        EXPECT_TRUE(isOld || rowsOf(path(), u"tblMain"_s).size() == 4) << killedAt.toStdString();
        EXPECT_TRUE(anOriginalExists()) << killedAt.toStdString();
        EXPECT_EQ(convertJetFile(path(), options()), path());
        EXPECT_EQ(rowsOf(path(), u"tblMain"_s).size(), 4) << killedAt.toStdString();
        EXPECT_EQ(read(u"kjv.mdb.jet"_s), verseFile()) << killedAt.toStdString();
        EXPECT_FALSE(leftovers().contains(u"kjv.mdb.2.jet"_s));
    }
}

TEST_F(JetKill, aKillWhileTheCacheIsFilledHindersNobody) {
    SmallDisk disk;
    if (!disk.mount(4096))
        GTEST_SKIP() << "no file system can be mounted here";
    write(verseFile());
    const QString source = disk.folder() + u"/kjv.mdb"_s;
    ASSERT_TRUE(QFile::copy(path(), source));
    ASSERT_TRUE(disk.protect());
    for (const char* const killedAt : {"locked", "begun", "copied", "written", "ready"}) {
        JetConversionOptions deadly = options();
        deadly.onStep = [&](const char* step) {
            if (qstrcmp(step, killedAt) == 0)
                raise(SIGKILL);
        };
        EXPECT_TRUE(WIFSIGNALED(inProcess([&] { convertJetFile(source, deadly); })));
        EXPECT_TRUE(QDir(path(u"cache"_s)).entryList({u"*.mdb"_s}, QDir::Files).isEmpty());
    }
    EXPECT_EQ(rowsOf(convertJetFile(source, options()), u"tblMain"_s).size(), 4);
    EXPECT_EQ(QDir(path(u"cache"_s)).entryList(QDir::Files).size(), 1);
}

TEST_F(JetKill, convertersAtOnceMakeOneFileAndKeepOneOriginal) {
    write(verseFile());
    JetConversionOptions patient = options();
    patient.lockWaitSeconds = 60;
    QList<pid_t> children;
    for (int count = 0; count < 6; ++count)
        children.append(start([&] { convertJetFile(path(), patient); }));
    for (const pid_t child : children) {
        const int status = end(child);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    }
    EXPECT_EQ(rowsOf(path(), u"tblMain"_s).size(), 4);
    EXPECT_EQ(leftovers(), QStringList(u"kjv.mdb.jet"_s));
}

TEST_F(JetKill, whoWaitedFindsTheFileThatAnotherMade) {
    write(verseFile(), u"other.mdb"_s);
    convertJetFile(path(u"other.mdb"_s), options());
    QFile::remove(path(u"other.mdb.jet"_s));
    write(verseFile());
    write("", u"kjv.mdb.converting"_s);
    const QByteArray lockFile = QFile::encodeName(path(u"kjv.mdb.converting"_s));
    const int lock = open(lockFile.constData(), O_RDWR);
    ASSERT_EQ(flock(lock, LOCK_EX), 0);
    const int watch = inotify_init1(IN_CLOEXEC);
    inotify_add_watch(watch, lockFile.constData(), IN_OPEN);
    const pid_t child = start([&] {
        JetConversionOptions patient = options();
        patient.lockWaitSeconds = 60;
        close(lock);
        convertJetFile(path(), patient);
    });
    char event[512];
    ASSERT_GT(::read(watch, event, sizeof event), 0); // now it waits
    QFile::remove(path());
    ASSERT_TRUE(QFile::rename(path(u"other.mdb"_s), path()));
    close(lock);
    close(watch);
    const int status = end(child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    EXPECT_EQ(rowsOf(path(), u"tblMain"_s).size(), 4);
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(JetKill, whoCannotWaitLongerIsToldSo) {
    write(verseFile());
    JetConversionOptions slow = options();
    QString text;
    slow.onStep = [&](const char* step) {
        if (qstrcmp(step, "copied") != 0)
            return;
        const int status = inProcess([&] {
            const QString error = errorTextOf([&] { convertJetFile(path(), options()); });
            if (!error.contains(u"is being converted by another program"_s))
                _exit(2);
        });
        text = WIFEXITED(status) && WEXITSTATUS(status) == 0 ? u"told"_s : u"not told"_s;
    };
    convertJetFile(path(), slow);
    EXPECT_EQ(text, u"told"_s);
}

} // namespace
