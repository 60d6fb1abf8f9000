#include "plugins/SmallModule.h"
#include "plugins/works/SmallDictionary.h"
#include "plugins/works/WorkFixture.h"

#include "Works.h"
#include "store/DataFile.h"

#include <QDir>
#include <QRegularExpression>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

class List : public WorkFixture {
protected:
    // The line of a work, its columns parted by single blanks.
    QString line(const QString& work) {
        const ToolRun run = runTool({u"list"_s, u"--to"_s, folder.path()});
        EXPECT_EQ(run.exitCode, 0);
        lines = run.out.split(u'\n');
        for (const QString& each : lines) {
            if (each.startsWith(work + u' '))
                return each.simplified();
        }
        return {};
    }

    QStringList lines;
};

} // namespace

TEST_F(List, hasALineForEachWorkWithAlignedColumns) {
    line(u"kjv"_s);
    ASSERT_GE(lines.size(), qsizetype(works().size()) + 2);
    const qsizetype source = lines[1].indexOf(u"SOURCE"_s);
    for (qsizetype at = 0; at < qsizetype(works().size()); ++at) {
        const QString& text = lines[at + 2];
        EXPECT_TRUE(text.startsWith(works()[at].name + u' ')) << qPrintable(text);
        EXPECT_LE(text.size(), 105) << qPrintable(text);
        EXPECT_TRUE(text[source - 1] == u' ' && text[source] != u' ') << qPrintable(text);
    }
}

TEST_F(List, tellsWhatIsNotThereAndWhereItComesFrom) {
    EXPECT_EQ(line(u"kjv"_s), u"kjv KJV.mdb no - sword-text-kjv public domain"_s);
    EXPECT_EQ(line(u"darby"_s), u"darby DARBY.mdb no - your own file import FILE --as darby"_s);
    EXPECT_EQ(line(u"topics"_s), u"topics topics.mdb no - (none) the user's own"_s);
}

TEST_F(List, countsTheRowsOfWhatIsThere) {
    SmallModule kingJames;
    kingJames.entries = {{"Gen 1:1", "In"}, {"Gen 1:2", "And"}};
    kingJames.writeTo(modules.path());
    ASSERT_EQ(make(u"kjv"_s).exitCode, 0);
    EXPECT_EQ(line(u"kjv"_s), u"kjv KJV.mdb yes 2 sword-text-kjv Public Domain"_s);
}

TEST_F(List, countsBothErasOfTheTimeLine) {
    ASSERT_EQ(make(u"time"_s).exitCode, 0);
    const QString path = folder.filePath(u"time.mdb"_s);
    const qsizetype rows = rowsOf(path, u"tblBC"_s).size() + rowsOf(path, u"tblAD"_s).size();
    EXPECT_TRUE(line(u"time"_s).startsWith(u"time time.mdb yes %1 "_s.arg(rows)));
}

TEST_F(List, aFileOfTheUsersOwnTellsItsLicence) {
    DataFileWriter writer(folder.filePath(u"DARBY.mdb"_s));
    createTranslationSchema(writer);
    createInfoTable(writer);
    writer.insert(u"tblInfo"_s, {u"Darby"_s, u"darby.txt"_s, u"free to copy\r\nfor all"_s, u""_s});
    writer.finish();
    EXPECT_EQ(line(u"darby"_s), u"darby DARBY.mdb yes 0 your own file free to copy"_s);
}

TEST_F(List, aDamagedFileIsToldInItsLineAndTheRestGoesOn) {
    QFile file(folder.filePath(u"KJV.mdb"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("mine");
    file.close();
    ASSERT_EQ(make(u"topics"_s).exitCode, 0);
    EXPECT_TRUE(line(u"kjv"_s).startsWith(u"kjv KJV.mdb damaged - sword-text-kjv The file "_s));
    EXPECT_EQ(line(u"topics"_s), u"topics topics.mdb yes 0 (none) the user's own"_s);
}

TEST_F(List, aJetDatabaseIsNotDamaged) {
    QFile file(folder.filePath(u"DARBY.mdb"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("\0\1\0\0Standard Jet DB\0\1\0\0\0", 24) + QByteArray(4072, '\0'));
    file.close();
    EXPECT_EQ(
        line(u"darby"_s), u"darby DARBY.mdb Jet - your own file a Jet database, which the program "
                          u"converts when it opens it"_s);
}

TEST_F(List, aFolderUnderTheNameIsNotDamaged) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"KJV.mdb"_s));
    EXPECT_EQ(
        line(u"kjv"_s), u"kjv KJV.mdb folder - sword-text-kjv a folder stands under this name"_s);
}

TEST_F(List, aPipeUnderTheNameIsNotRead) {
    ASSERT_EQ(mkfifo(qPrintable(folder.filePath(u"KJV.mdb"_s)), 0600), 0);
    EXPECT_EQ(
        line(u"kjv"_s),
        u"kjv KJV.mdb device - sword-text-kjv what stands under this name is no file"_s);
}

TEST_F(List, aFileOfAnotherWorkIsTold) {
    ASSERT_EQ(make(u"topics"_s).exitCode, 0);
    ASSERT_TRUE(QFile::rename(folder.filePath(u"topics.mdb"_s), folder.filePath(u"names.mdb"_s)));
    EXPECT_TRUE(line(u"names"_s).startsWith(u"names names.mdb damaged - "_s));
}
