#include "plugins/DataFiles.h"
#include "plugins/SmallModule.h"
#include "plugins/ToolRun.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#ifdef Q_OS_LINUX
#include "plugins/jet/SmallDisk.h"
#endif

using namespace Qt::StringLiterals;

namespace {

// A file made from three verses, to be made anew from another text.
class CarriedNotesTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(makeFrom({"Gen 1:1", "Gen 1:2", "Gen 1:3"}).exitCode, 0); }

    ToolRun makeFrom(const std::vector<QByteArray>& verses) {
        SmallModule module;
        for (const QByteArray& verse : verses)
            module.entries.emplace_back(verse, "text of " + verse);
        return makeFrom(module, folder.path());
    }

    static ToolRun makeFrom(const SmallModule& module, const QString& destination) {
        const QTemporaryDir modules;
        module.writeTo(modules.path());
        return runTool(
            {u"make"_s, u"kjv"_s, u"--force"_s, u"--from"_s, modules.path(), u"--to"_s,
             destination});
    }

    void addRow(const VerseAddress& address, const QString& note) {
        Database database = DBEngine::CreateWorkspace(u"Test"_s, u"Admin"_s, {}).OpenDatabase(path);
        Recordset verses = database.OpenRecordset(u"tblMain"_s);
        verses.AddNew();
        verses.Fields(u"book"_s) = address.book;
        verses.Fields(u"chapter"_s) = address.chapter;
        verses.Fields(u"verse"_s) = address.verse;
        verses.Fields(u"note"_s) = note;
        verses.Update();
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(u"KJV.mdb"_s);
};

} // namespace

TEST_F(CarriedNotesTest, forceCarriesNotesOver) {
    setNote(path, {1, 1, 1}, u"first\r\nsecond line"_s);
    setNote(path, {1, 1, 3}, u"x"_s);
    const ToolRun run = makeFrom({"Gen 1:1", "Gen 1:2", "Gen 1:3", "Gen 1:4"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.out.contains(u"KJV.mdb: 2 note(s) carried over\n"_s)) << qPrintable(run.out);
    EXPECT_EQ(verseField(path, {1, 1, 1}, u"note"_s), u"first\r\nsecond line"_s);
    EXPECT_TRUE(verseField(path, {1, 1, 2}, u"note"_s).isNull());
    EXPECT_EQ(verseField(path, {1, 1, 3}, u"note"_s), u"x"_s);
    EXPECT_EQ(verseField(path, {1, 1, 4}, u"body"_s), u"text of Gen 1:4"_s);
}

TEST_F(CarriedNotesTest, blanksAreNoNote) {
    setNote(path, {1, 1, 1}, u" "_s);
    const ToolRun run = makeFrom({"Gen 1:2"});
    EXPECT_FALSE(run.out.contains(u"note(s)"_s)) << qPrintable(run.out);
}

TEST_F(CarriedNotesTest, aNoteWithoutAVerseIsKeptAndNamed) {
    setNote(path, {1, 1, 1}, u"stays"_s);
    setNote(path, {1, 1, 3}, u"homeless"_s);
    const ToolRun run = makeFrom({"Gen 1:1"});
    EXPECT_TRUE(run.out.contains(
        u"1 note(s) without a verse in this text, kept in tblKeptNotes: Genesis 1:3\n"_s))
        << qPrintable(run.out);
    EXPECT_EQ(
        rowsOf(path, u"tblKeptNotes"_s), QList<QVariantList>({{1LL, 1LL, 3LL, u"homeless"_s}}));
}

TEST_F(CarriedNotesTest, aKeptNoteComesBackWithItsVerse) {
    setNote(path, {1, 1, 3}, u"homeless"_s);
    makeFrom({"Gen 1:1"});
    makeFrom({"Gen 1:2"});
    const ToolRun run = makeFrom({"Gen 1:3"});
    EXPECT_TRUE(run.out.contains(u"1 note(s) carried over\n"_s)) << qPrintable(run.out);
    EXPECT_EQ(verseField(path, {1, 1, 3}, u"note"_s), u"homeless"_s);
}

TEST_F(CarriedNotesTest, aSecondNoteOnAVerseIsKept) {
    setNote(path, {1, 1, 1}, u"of the verse"_s);
    addRow({1, 1, 1}, u"of a doubled row"_s);
    makeFrom({"Gen 1:1"});
    EXPECT_EQ(verseField(path, {1, 1, 1}, u"note"_s), u"of the verse"_s);
    EXPECT_EQ(
        rowsOf(path, u"tblKeptNotes"_s),
        QList<QVariantList>({{1LL, 1LL, 1LL, u"of a doubled row"_s}}));
}

TEST_F(CarriedNotesTest, aNoteOutsideOfTheCatalogueIsKept) {
    addRow({70, 2, 3}, u"beyond"_s);
    const ToolRun run = makeFrom({"Gen 1:1"});
    EXPECT_TRUE(run.out.contains(u"kept in tblKeptNotes: Book 70 2:3\n"_s)) << qPrintable(run.out);
}

TEST_F(CarriedNotesTest, aFileWhoseNotesCannotBeReadStaysAsItIs) {
    const QByteArray damaged(5000, 'x');
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(damaged);
    }
    const ToolRun run = makeFrom({"Gen 1:1"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains(u"stays as it is, since its notes cannot be read"_s))
        << qPrintable(run.errors);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), damaged);
}

#ifdef Q_OS_LINUX

namespace {

// With the file on a disk of its own.
class MakeOnSmallDiskTest : public CarriedNotesTest {
protected:
    void SetUp() override {
        CarriedNotesTest::SetUp();
        setNote(path, {1, 1, 1}, u"mine"_s);
        if (!disk.mount(256))
            GTEST_SKIP() << "no right to mount";
        ASSERT_TRUE(QFile::copy(path, file));
    }

    void expectFailure(const SmallModule& module) {
        const ToolRun run = makeFrom(module, disk.folder());
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_TRUE(run.errors.startsWith(u"KJV.mdb was not made: "_s)) << qPrintable(run.errors);
        EXPECT_EQ(filesIn(disk.folder()), QStringList(u"KJV.mdb"_s));
        EXPECT_EQ(rowsOf(file, u"tblMain"_s), rowsOf(path, u"tblMain"_s));
    }

    SmallDisk disk;
    const QString file = disk.folder() + u"/KJV.mdb"_s;
};

} // namespace

TEST_F(MakeOnSmallDiskTest, aFullOneKeepsTheFileThatWasThere) {
    SmallModule module;
    for (int verse = 1; verse <= 31; ++verse)
        module.entries.emplace_back(
            "Gen 1:" + QByteArray::number(verse), QByteArray("word ").repeated(4000));
    expectFailure(module);
}

TEST_F(MakeOnSmallDiskTest, aWriteProtectedOneKeepsTheFileThatWasThere) {
    ASSERT_TRUE(disk.protect());
    SmallModule module;
    module.entries = {{"Gen 1:1", "In"}};
    expectFailure(module);
}

#endif
