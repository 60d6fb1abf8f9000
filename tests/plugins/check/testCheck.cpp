// lumenvia-plugins check: what a file holds, and each thing that may be wrong with it.
#include "plugins/ToolRun.h"

#include "store/DataFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

class Check : public testing::Test {
protected:
    QString path() const { return m_folder.filePath(u"KJV.mdb"_s); }

    // A translation of one sound verse and these rows.
    void writeTranslation(const QList<QVariantList>& rows) {
        DataFileWriter writer(path());
        createTranslationSchema(writer);
        writer.insert(u"tblMain"_s, {1, 1, 1, 1, u"In the beginning"_s, QVariant()});
        for (const QVariantList& row : rows)
            writer.insert(u"tblMain"_s, row);
        writer.finish();
    }

    void writeFile(const std::vector<const char*>& statements) {
        DataFileWriter writer(path());
        for (const char* statement : statements)
            writer.execute(statement);
        writer.finish();
    }

    ToolRun check() const { return runTool({u"check"_s, path()}); }

    // Expects this line among those that say what is wrong.
    void expectWrong(const QString& line) const {
        const ToolRun run = check();
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_TRUE(run.out.contains(u"  wrong: "_s + line + u'\n')) << qPrintable(run.out);
        EXPECT_FALSE(run.out.contains(u"Nothing is wrong"_s));
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(Check, tellsWhatASoundTranslationHolds) {
    writeTranslation(
        {{2, 1, 1, 2, u"\x1e"_s + u"004:003And the earth"_s, u"a note"_s},
         {3, 40, 2, 1, u"Now"_s, u" "_s}});
    const ToolRun run = check();
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(
        run.out, path()
                     + u"\n  a translation\n  3 verses of 2 books, 2 chapters\n"
                       u"  1 verses with words in red\n  1 notes\n  Nothing is wrong with it.\n"_s);
}

TEST_F(Check, tellsWhereATextIsFrom) {
    DataFileWriter writer(path());
    createTranslationSchema(writer);
    writer.insert(u"tblMain"_s, {1, 1, 1, 1, u"In"_s, QVariant()});
    createInfoTable(writer);
    writer.insert(
        u"tblInfo"_s, {u"Title"_s, QString(), u"first line\nof a long licence"_s, u"2026-01-02"_s});
    writer.finish();
    EXPECT_TRUE(check().out.contains(u"  Title; first line; 2026-01-02\n"_s));
}

TEST_F(Check, findsRowsThatNoPageShows) {
    writeTranslation(
        {{2, 67, 1, 1, u"x"_s, QVariant()},
         {3, 1, 0, 1, u"x"_s, QVariant()},
         {4, 1, 1, 0, u"x"_s, QVariant()},
         {5, 1, 51, 1, u"x"_s, QVariant()},
         {6, u"Genesis"_s, 1, 1, u"x"_s, QVariant()}});
    expectWrong(u"verses of no book from 1 to 66 (1): Book 67 1:1"_s);
    expectWrong(u"chapters or verses below 1 (2): Genesis 0:1, Genesis 1:0"_s);
    expectWrong(u"chapters behind the book's last one, which no list reaches (1): Genesis 51:1"_s);
    expectWrong(u"rows without book, chapter and verse as numbers (1): ID 6"_s);
}

TEST_F(Check, findsDoubledAndEmptyVerses) {
    writeTranslation(
        {{2, 1, 1, 1, u"In once more"_s, QVariant()},
         {3, 1, 1, 2, u" "_s, QVariant()},
         {4, 1, 1, 3, QVariant(), QVariant()}});
    expectWrong(u"verses that stand there twice (1): Genesis 1:1"_s);
    expectWrong(u"verses without text (2): Genesis 1:2, Genesis 1:3"_s);
}

TEST_F(Check, findsRedLettersBeyondTheVerse) {
    writeTranslation(
        {{2, 1, 1, 2, u"\x1e"_s + u"004:003And the"_s, QVariant()},
         {3, 1, 1, 3, u"\x1e"_s + u"004:004And the"_s, QVariant()},
         {4, 1, 1, 4, u"\x1e"_s + u"00"_s, QVariant()},
         {5, 1, 1, 5, u"\x1e"_s + u"abc:001And the"_s, QVariant()}});
    expectWrong(u"words in red beyond the verse (3): Genesis 1:3, Genesis 1:4, Genesis 1:5"_s);
}

TEST_F(Check, namesTheFirstTenOfManyPlaces) {
    QList<QVariantList> rows;
    for (int verse = 2; verse <= 14; ++verse)
        rows.append({verse, 1, 1, verse, QString(), QVariant()});
    writeTranslation(rows);
    EXPECT_TRUE(check().out.contains(u"(13): Genesis 1:2, "_s));
    EXPECT_TRUE(check().out.contains(u"Genesis 1:11 ...\n"_s));
}

TEST_F(Check, findsAMissingIndexAndField) {
    writeFile({"CREATE TABLE tblMain (ID INTEGER PRIMARY KEY, book, chapter, verse, body, note)"});
    expectWrong(u"the table tblMain lacks the index VerseIndex"_s);
    writeFile({"CREATE TABLE tblMain (ID INTEGER PRIMARY KEY, book, verse, chapter, body)"});
    expectWrong(u"field 2 of the table tblMain is verse; expected chapter"_s);
    expectWrong(u"field 5 of the table tblMain is missing; expected note"_s);
}

TEST_F(Check, findsAMissingTable) {
    writeFile({"CREATE TABLE tblBC (id INTEGER PRIMARY KEY, year, event)"});
    expectWrong(u"the table tblAD is missing"_s);
}

TEST_F(Check, findsGapsWhereRowsAreCounted) {
    writeFile(
        {"CREATE TABLE tblComment (ID INTEGER PRIMARY KEY, book, chapter, comment)",
         "INSERT INTO tblComment VALUES (1, 1, 1, 'x'), (2, 1, 2, ''), (4, 1, 3, 'x')"});
    expectWrong(u"rows of tblComment out of their count (1): 3"_s);
    expectWrong(u"rows of tblComment without comment (1): 2"_s);
}

TEST_F(Check, tellsOfNotesThatWereKept) {
    writeFile(
        {"CREATE TABLE tblMain (ID INTEGER PRIMARY KEY, book, chapter, verse, body, note)",
         "CREATE INDEX VerseIndex ON tblMain (book, chapter, verse)",
         "CREATE TABLE tblKeptNotes (book, chapter, verse, note)",
         "INSERT INTO tblKeptNotes VALUES (1, 1, 1, 'x')"});
    EXPECT_TRUE(
        check().out.contains(u"1 notes kept in tblKeptNotes, whose verses this text lacks"_s));
}

TEST_F(Check, aFileOfOurKindWithoutATableOfOurs) {
    writeFile({"CREATE TABLE other (x)"});
    expectWrong(u"it has no table that the program reads"_s);
}

TEST_F(Check, sayWhyAFileCannotBeOpened) {
    expectWrong(u"The file \"%1\" does not exist."_s.arg(path()));
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no database");
    file.close();
    expectWrong(u"The file \"%1\" is not a data file of Lumenvia."_s.arg(path()));
}

TEST_F(Check, namesWhatIsNoFile) {
    ASSERT_EQ(mkfifo(qPrintable(path()), 0600), 0);
    expectWrong(u"The file \"%1\" is a folder or a device, and no data file."_s.arg(path()));
    const QString root = QDir::rootPath();
    EXPECT_TRUE(runTool({u"check"_s, root})
                    .out.contains(u"The file \"%1\" is a folder or a device"_s.arg(root)));
}

TEST_F(Check, aConversionDoesNotReadAPipe) {
    ASSERT_EQ(mkfifo(qPrintable(path()), 0600), 0);
    const ToolRun run = runTool({u"convert"_s, path()});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors, u"The file %1 cannot be read.\n"_s.arg(path()));
}

TEST_F(Check, findsAPageThatWasOverwritten) {
    QList<QVariantList> rows;
    for (int verse = 2; verse <= 2000; ++verse)
        rows.append({verse, 1, 1, verse, u"In the beginning "_s.repeated(4), QVariant()});
    writeTranslation(rows);
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(file.size() / 2 / 16384 * 16384);
    file.write(QByteArray(16384, '\x5A'));
    file.close();
    const ToolRun run = check();
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out.count(u"is damaged"_s), 1) << qPrintable(run.out);
}

TEST_F(Check, writesNothing) {
    writeTranslation({});
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    check();
    file.seek(0);
    EXPECT_EQ(file.readAll(), before);
}
