// A file is replaced as a whole, and the original is kept.
#include "plugins/jet/JetTest.h"
#include "plugins/jet/SmallDisk.h"

#include "store/DataFile.h"
#include "store/Workspace.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cstdio>
#include <sys/stat.h>

namespace {

class JetReplacement : public JetTest {
protected:
    Database openConverted() const {
        return DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {}).OpenDatabase(path());
    }
};

TEST_F(JetReplacement, theFileTakesThePlaceOfTheOriginalWhichIsKept) {
    write(verseFile());
    EXPECT_EQ(convertJetFile(path(), options()), path());
    EXPECT_EQ(leftovers(), QStringList(u"kjv.mdb.jet"_s));
    EXPECT_EQ(read(u"kjv.mdb.jet"_s), verseFile());
    EXPECT_TRUE(read().startsWith("SQLite format 3"));
}

TEST_F(JetReplacement, verseAndNoteComeOverWithEveryCharacter) {
    for (const JetVersion version : {JetVersion::Jet3, JetVersion::Jet4}) {
        write(verseFile(version));
        convertJetFile(path(), options());
        const QList<QVariantList> rows = rowsOf(path(), u"tblMain"_s);
        ASSERT_EQ(rows.size(), 4);
        for (int row = 0; row < 4; ++row)
            EXPECT_EQ(rows[row].sliced(4), verseTable().rows[row].values.sliced(4)) << row;
    }
}

TEST_F(JetReplacement, theStoreSeeksInTheResultAndWritesNotes) {
    write(verseFile());
    convertJetFile(path(), options());
    Database database = openConverted();
    Recordset verses = database.OpenRecordset(u"tblMain"_s, dbOpenTable);
    verses.Index(u"VerseIndex"_s);
    verses.Seek(u"="_s, 40, 5, 3);
    ASSERT_FALSE(verses.NoMatch());
    EXPECT_EQ(verses.Fields(5).Value(), u"n"_s.repeated(9000));
    verses.Edit();
    verses.Fields(u"note"_s) = u"mine"_s;
    verses.Update();
    EXPECT_EQ(rowsOf(path(), u"tblMain"_s)[2][5], u"mine"_s);
}

TEST_F(JetReplacement, aNameThatIsTakenIsNotTouched) {
    write("the user's", u"kjv.mdb.jet"_s);
    write(verseFile());
    convertJetFile(path(), options());
    write(verseFile(JetVersion::Jet3));
    convertJetFile(path(), options());
    EXPECT_EQ(read(u"kjv.mdb.jet"_s), "the user's");
    EXPECT_EQ(read(u"kjv.mdb.2.jet"_s), verseFile());
    EXPECT_EQ(read(u"kjv.mdb.3.jet"_s), verseFile(JetVersion::Jet3));
}

TEST_F(JetReplacement, aFileOfOursIsItsOwnAnswer) {
    DataFileWriter writer(path());
    createTopicsSchema(writer);
    writer.finish();
    const QByteArray before = read();
    EXPECT_EQ(convertJetFile(path(), options()), path());
    EXPECT_EQ(read(), before);
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(JetReplacement, aLinkStaysALink) {
    QDir(path(u"."_s)).mkdir(u"folder"_s);
    write(verseFile(), u"folder/real.mdb"_s);
    ASSERT_TRUE(QFile::link(path(u"folder/real.mdb"_s), path()));
    EXPECT_EQ(convertJetFile(path(), options()), path());
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    EXPECT_EQ(rowsOf(path(), u"tblMain"_s).size(), 4);
    EXPECT_EQ(read(u"folder/real.mdb.jet"_s), verseFile());
}

TEST_F(JetReplacement, permissionsStayAsTheyWere) {
    write(verseFile());
    ASSERT_EQ(chmod(QFile::encodeName(path()).constData(), 0640), 0);
    convertJetFile(path(), options());
    struct stat status {};
    ASSERT_EQ(stat(QFile::encodeName(path()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640u);
}

TEST_F(JetReplacement, aJournalOfAnEarlierFileIsNotTakenForTheNewOnes) {
    write(verseFile());
    write("an old journal", u"kjv.mdb-journal"_s);
    convertJetFile(path(), options());
    EXPECT_EQ(leftovers(), QStringList(u"kjv.mdb.jet"_s));
    EXPECT_EQ(rowsOf(path(), u"tblMain"_s).size(), 4);
}

TEST_F(JetReplacement, whatAKilledConverterLeftIsClearedAway) {
    write("half a file", u"kjv.mdb.lumenvia-new.new-1234"_s);
    write("another half", u"kjv.mdb.lumenvia-new"_s);
    write("", u"kjv.mdb.converting"_s);
    write(verseFile());
    convertJetFile(path(), options());
    EXPECT_EQ(leftovers(), QStringList(u"kjv.mdb.jet"_s));
}

TEST_F(JetReplacement, aSourceThatChangesOnceIsReadAgain) {
    write(verseFile());
    JetConversionOptions changing = options();
    int changes = 0;
    changing.onStep = [&](const char* step) {
        if (qstrcmp(step, "copied") == 0 && changes++ == 0)
            write(verseFile(JetVersion::Jet3) + QByteArray(2048, '\0'));
    };
    convertJetFile(path(), changing);
    EXPECT_EQ(read(u"kjv.mdb.jet"_s), verseFile(JetVersion::Jet3) + QByteArray(2048, '\0'));
    EXPECT_EQ(rowsOf(path(), u"tblMain"_s).size(), 4);
}

TEST_F(JetReplacement, aSourceThatGoesOnChangingStaysAsItIs) {
    for (const char* const when : {"begun", "written", "ready", "kept"}) {
        write(verseFile());
        JetConversionOptions changing = options();
        QByteArray content = verseFile();
        changing.onStep = [&](const char* step) {
            if (qstrcmp(step, when) == 0)
                write(content += "x");
        };
        EXPECT_EQ(
            errorTextOf([&] { convertJetFile(path(), changing); }),
            u"%1 is being changed by another program. Close that, and try again."_s.arg(path()));
        EXPECT_EQ(read(), content);
    }
}

TEST_F(JetReplacement, whatLooksLikeDamageWhileTheSourceChangesIsReadAgain) {
    write(verseFile().replace(3 * 4096, 4096, QByteArray(4096, '\0')));
    write(verseFile(), u"good.mdb"_s);
    JetConversionOptions changing = options();
    changing.onStep = [&](const char* step) {
        if (qstrcmp(step, "begun") == 0) // the file that is open stays the damaged one
            rename(
                QFile::encodeName(path(u"good.mdb"_s)).constData(),
                QFile::encodeName(path()).constData());
    };
    convertJetFile(path(), changing);
    EXPECT_EQ(rowsOf(path(), u"tblMain"_s).size(), 4);
}

class JetFolders : public JetTest {
protected:
    SmallDisk disk;

    QString onDisk() const { return disk.folder() + u"/kjv.mdb"_s; }

    void writeOnDisk(const QByteArray& bytes) const {
        QFile file(onDisk());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QByteArray readOnDisk() const {
        QFile file(onDisk());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TEST_F(JetFolders, aFolderThatCannotBeWrittenIsServedFromTheCache) {
    if (!disk.mount(4096))
        GTEST_SKIP() << "no file system can be mounted here";
    writeOnDisk(verseFile());
    ASSERT_TRUE(disk.protect());
    const QString answer = convertJetFile(onDisk(), options());
    EXPECT_EQ(QFileInfo(answer).absolutePath(), path(u"cache"_s));
    EXPECT_EQ(rowsOf(answer, u"tblMain"_s).size(), 4);
    struct stat status {};
    ASSERT_EQ(stat(QFile::encodeName(answer).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0444u);
    EXPECT_EQ(readOnDisk(), verseFile());
    EXPECT_EQ(QDir(path(u"cache"_s)).entryList(QDir::Files).size(), 1);
}

TEST_F(JetFolders, theCachedFileIsMadeOnceAndAnewForANewSource) {
    if (!disk.mount(4096))
        GTEST_SKIP() << "no file system can be mounted here";
    writeOnDisk(verseFile());
    ASSERT_TRUE(disk.protect());
    JetConversionOptions counting = options();
    int conversions = 0;
    counting.onStep = [&](const char* step) { conversions += qstrcmp(step, "copied") == 0; };
    const QString answer = convertJetFile(onDisk(), counting);
    EXPECT_EQ(convertJetFile(onDisk(), counting), answer);
    EXPECT_EQ(conversions, 1);
    ASSERT_TRUE(disk.protect(false));
    writeOnDisk(verseFile(JetVersion::Jet3));
    ASSERT_TRUE(disk.protect());
    const QString other = convertJetFile(onDisk(), counting);
    EXPECT_NE(other, answer);
    EXPECT_EQ(conversions, 2);
    EXPECT_FALSE(QFileInfo::exists(answer));
}

TEST_F(JetFolders, aDamagedFileLeavesNothingInTheCache) {
    if (!disk.mount(4096))
        GTEST_SKIP() << "no file system can be mounted here";
    writeOnDisk(verseFile().left(3 * 4096));
    ASSERT_TRUE(disk.protect());
    EXPECT_NE(errorTextOf([&] { convertJetFile(onDisk(), options()); }), QString());
    EXPECT_EQ(QDir(path(u"cache"_s)).entryList(QDir::Files), QStringList());
}

TEST_F(JetFolders, aFullDiskLeavesTheFileAsItWas) {
    if (!disk.mount(160))
        GTEST_SKIP() << "no file system can be mounted here";
    JetTableOutline verses = verseTable();
    verses.rows[1].values[5] = u"n"_s.repeated(50000);
    JetFixture fixture(JetVersion::Jet4);
    fixture.add(verses);
    const QByteArray content = fixture.bytes();
    writeOnDisk(content);
    const QString text = errorTextOf([&] { convertJetFile(onDisk(), options()); });
    EXPECT_TRUE(text.contains(u"disk is full"_s)) << text.toStdString();
    EXPECT_EQ(readOnDisk(), content);
    EXPECT_EQ(QDir(disk.folder()).entryList(QDir::Files | QDir::Hidden), QStringList(u"kjv.mdb"_s));
}

} // namespace
