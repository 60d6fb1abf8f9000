#include "plugins/DataFiles.h"
#include "plugins/SmallModule.h"
#include "plugins/ToolRun.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class CommandLineTest : public testing::Test {
protected:
    void SetUp() override {
        SmallModule kingJames;
        kingJames.entries = {{"Gen 1:1", "In"}, {"Gen 1:2", "And"}};
        kingJames.writeTo(modules.path());
        SmallModule spanish;
        spanish.name = u"spaRV1909eb"_s;
        spanish.entries = {{"Gen 1:1", "EN"}};
        spanish.writeTo(modules.path());
    }

    ToolRun make(const QStringList& arguments) {
        return runTool(
            QStringList{u"make"_s, u"--from"_s, modules.path(), u"--to"_s, folder.path()}
            + arguments);
    }

    QTemporaryDir modules;
    QTemporaryDir folder;
};

} // namespace

TEST_F(CommandLineTest, makesTheWorksThatAreNamed) {
    const ToolRun run = make({u"topics"_s, u"kjv"_s});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(filesIn(folder.path()), QStringList({u"KJV.mdb"_s, u"topics.mdb"_s}));
    EXPECT_TRUE(run.errors.isEmpty()) << qPrintable(run.errors);
}

TEST_F(CommandLineTest, endsEachWorkWithFileRowsAndSeconds) {
    const ToolRun run = make({u"kjv"_s});
    const QRegularExpression line(u"\n%1: 2 rows, \\d+\\.\\d s\\n$"_s.arg(
        QRegularExpression::escape(folder.filePath(u"KJV.mdb"_s))));
    EXPECT_TRUE(line.match(run.out).hasMatch()) << qPrintable(run.out);
}

TEST_F(CommandLineTest, workNamesAreReadWithoutRegardToCase) {
    EXPECT_EQ(make({u"KJV"_s}).exitCode, 0);
}

TEST_F(CommandLineTest, makesAFolderThatIsMissing) {
    const QString deep = folder.filePath(u"a/b"_s);
    EXPECT_EQ(runTool({u"make"_s, u"topics"_s, u"--to"_s, deep}).exitCode, 0);
    EXPECT_EQ(filesIn(deep), QStringList(u"topics.mdb"_s));
}

TEST_F(CommandLineTest, aFolderMayBeWrittenAsTheProgramWritesPaths) {
    const QString deep = folder.path() + u"\\a\\b"_s;
    EXPECT_EQ(runTool({u"make"_s, u"topics"_s, u"--to"_s, deep}).exitCode, 0);
    EXPECT_EQ(filesIn(folder.filePath(u"a/b"_s)), QStringList(u"topics.mdb"_s));
}

TEST_F(CommandLineTest, standardFolderIsTheProgramsOwn) {
    qputenv("LUMENVIA_HOME", QFile::encodeName(folder.filePath(u"home"_s)));
    EXPECT_EQ(runTool({u"make"_s, u"topics"_s}).exitCode, 0);
    qunsetenv("LUMENVIA_HOME");
    EXPECT_EQ(filesIn(folder.filePath(u"home"_s)), QStringList(u"topics.mdb"_s));
}

TEST_F(CommandLineTest, aFolderThatCannotBeMadeIsAnError) {
    QFile file(folder.filePath(u"file"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const QString below = folder.filePath(u"file/below"_s);
    const ToolRun run = runTool({u"make"_s, u"topics"_s, u"--to"_s, below});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains(u"The folder %1 cannot be made."_s.arg(below)))
        << qPrintable(run.errors);
}

#ifdef Q_OS_LINUX
// Nobody writes there, not even the owner of the machine.
TEST_F(CommandLineTest, aFolderThatCannotBeWrittenIsAnError) {
    const ToolRun run = runTool({u"make"_s, u"topics"_s, u"--to"_s, u"/proc"_s});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.startsWith(u"topics.mdb was not made: "_s)) << qPrintable(run.errors);
}
#endif

TEST_F(CommandLineTest, aFileThatIsThereStaysAsItIs) {
    QFile file(folder.filePath(u"KJV.mdb"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("mine");
    file.close();
    const ToolRun run = make({u"kjv"_s});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.out.contains(u"KJV.mdb is there already and stays as it is"_s))
        << qPrintable(run.out);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "mine");
}

TEST_F(CommandLineTest, topicsAreNeverMadeAnew) {
    ASSERT_EQ(make({u"topics"_s}).exitCode, 0);
    const QString path = folder.filePath(u"topics.mdb"_s);
    {
        Database database = DBEngine::CreateWorkspace(u"Test"_s, u"Admin"_s, {}).OpenDatabase(path);
        Recordset topics = database.OpenRecordset(u"tblTopicName"_s);
        topics.AddNew();
        topics.Fields(u"topicname"_s) = u"Grace"_s;
        topics.Update();
    }
    const ToolRun run = make({u"topics"_s, u"--force"_s});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.out.contains(u"topics.mdb is there already and stays as it is"_s))
        << qPrintable(run.out);
    EXPECT_EQ(rowsOf(path, u"tblTopicName"_s), QList<QVariantList>({{1LL, u"Grace"_s}}));
}

TEST_F(CommandLineTest, aFileInAnotherCaseIsTheSameFile) {
    ASSERT_EQ(make({u"kjv"_s}).exitCode, 0);
    ASSERT_TRUE(QFile::rename(folder.filePath(u"KJV.mdb"_s), folder.filePath(u"kjv.MDB"_s)));
    EXPECT_TRUE(make({u"kjv"_s}).out.contains(u"is there already"_s));
    EXPECT_EQ(make({u"kjv"_s, u"--force"_s}).exitCode, 0);
    EXPECT_EQ(filesIn(folder.path()), QStringList(u"kjv.MDB"_s));
}

TEST_F(CommandLineTest, aMissingModuleNamesItsPackageAndDoesNotHinderTheNextWork) {
    QTemporaryDir empty;
    const ToolRun run = runTool(
        {u"make"_s, u"kjv"_s, u"topics"_s, u"--from"_s, empty.path(), u"--to"_s, folder.path()});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains(
        u"KJV.mdb was not made: The module engKJV2006eb is not installed. Install the package "
        u"sword-text-kjv, or name the folder of the modules with --from."_s))
        << qPrintable(run.errors);
    EXPECT_EQ(filesIn(folder.path()), QStringList(u"topics.mdb"_s));
}

TEST_F(CommandLineTest, anUnknownWorkIsWrongUse) {
    const ToolRun run = make({u"kjv"_s, u"vulgate"_s});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(
        run.errors.contains(u"\"vulgate\" is not a work that this program makes. It makes: "_s))
        << qPrintable(run.errors);
    EXPECT_TRUE(filesIn(folder.path()).isEmpty());
}

TEST_F(CommandLineTest, wrongUseIsToldAndMakesNothing) {
    for (const QStringList& arguments :
         {QStringList{}, QStringList{u"make"_s}, QStringList{u"brew"_s},
          QStringList{u"make"_s, u"kjv"_s, u"--fast"_s},
          QStringList{u"make"_s, u"kjv"_s, u"--to"_s}}) {
        const ToolRun run = runTool(arguments);
        EXPECT_EQ(run.exitCode, 2) << qPrintable(arguments.join(u' '));
        EXPECT_FALSE(run.errors.isEmpty());
    }
}

TEST_F(CommandLineTest, helpAndVersionAreNoErrors) {
    const ToolRun help = runTool({u"--help"_s});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_TRUE(help.out.contains(u"Exit codes: 0 "_s)) << qPrintable(help.out);
    const ToolRun version = runTool({u"--version"_s});
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_TRUE(QRegularExpression(u"^lumenvia-plugins \\d+\\.\\d+\\.\\d+\\n$"_s)
                    .match(version.out)
                    .hasMatch())
        << qPrintable(version.out);
}
