// What is told of files that are no text, letter for letter.
#include "plugins/import/ImportFixture.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

struct Refusal {
    const char* file;
    QByteArray content;
    const char* message;
};

void PrintTo(const Refusal& refusal, std::ostream* stream) {
    *stream << refusal.file;
}

class RefusalTest : public ImportTest, public testing::WithParamInterface<Refusal> {};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Each, RefusalTest,
    testing::Values(
        Refusal{
            "h.html", "<!DOCTYPE html>\n<html><body>x</body></html>",
            "h.html: the root element is <html>; expected <osis>, <usx>, <usfx> or <XMLBIBLE>"},
        Refusal{
            "z.zip", QByteArray("PK\x03\x04\x14\x00\x00", 7),
            "z.zip: this is a zip archive; unpack it first"},
        Refusal{
            "bad.txt", "Gen\t1\t1\tIn\nGenesys\t1\t2\tAnd\n",
            "bad.txt:2: \"Genesys\" is not a book that this program knows"},
        Refusal{"empty.txt", "", "empty.txt: the file is empty"},
        Refusal{"blank.txt", " \n\r\n", "blank.txt: the file is empty"},
        Refusal{
            "b.tar.gz", QByteArray("\x1F\x8B\x08\x00", 4),
            "b.tar.gz: this is a compressed archive; unpack it first"},
        Refusal{
            "r.bin", QByteArray("\x01\x02\x00\x7F\xFF\xFE\x00\x11\n\x00", 10),
            "r.bin: this is no text that the program can read"},
        Refusal{
            "own.mdb", "SQLite format 3",
            "own.mdb: this is an SQLite file; a data file of Lumenvia needs no import"},
        Refusal{
            "prose.txt", "Once upon a time\n",
            "prose.txt:1: expected book, chapter, verse and text, parted by tabs, commas, "
            "semicolons or \"|\""},
        Refusal{
            "cut.usx", "<usx>\n<book code=\"GEN\"/>\n\n\n\n\n\n<chapter number=\"1\"/>abc",
            "cut.usx: line 8, column 24: Premature end of document."},
        Refusal{
            "none.usx", "<usx version=\"3.0\"></usx>",
            "USX file none.usx holds no verse of the 66 books."}));

TEST_P(RefusalTest, saysWhatIsWrongAndLeavesTheOldFile) {
    makeOldFile();
    EXPECT_FALSE(importText(GetParam().content, QString::fromUtf8(GetParam().file)));
    EXPECT_EQ(errors, u"DARBY.mdb was not made: %1\n"_s.arg(QString::fromUtf8(GetParam().message)));
    expectOldFile();
}

TEST_F(ImportTest, aFolderWithoutTextsIsRefused) {
    writeFile(source.path() + u"/none"_s, u"README.txt"_s, "About this text\n");
    EXPECT_FALSE(import(source.path() + u"/none"_s));
    EXPECT_TRUE(
        errors.endsWith(u"none: there is no book in USFM or XML in this folder. A text of another "
                        u"kind is imported by the name of its file.\n"_s))
        << qPrintable(errors);
    expectNothingMade();
}

TEST_F(ImportTest, aDelimitedTextIsReadByItsFileAndNotByItsFolder) {
    const QString file = writeFile(source.path() + u"/one"_s, u"one.txt"_s, "Gen\t1\t1\tIn\n");
    EXPECT_FALSE(import(source.path() + u"/one"_s));
    EXPECT_TRUE(errors.contains(u"is imported by the name of its file"_s)) << qPrintable(errors);
    EXPECT_TRUE(import(file)) << qPrintable(errors);
}

TEST_F(ImportTest, aPipeIsRefused) {
    const QString pipe = source.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    EXPECT_FALSE(import(pipe));
    EXPECT_EQ(errors, u"DARBY.mdb was not made: pipe: this is neither a file nor a folder\n"_s);
}

TEST_F(ImportTest, aDeviceIsRefused) {
    for (const QString& device : {u"/dev/null"_s, u"/dev/zero"_s, u"/dev/full"_s}) {
        EXPECT_FALSE(import(device));
        EXPECT_TRUE(errors.endsWith(u": this is neither a file nor a folder\n"_s))
            << qPrintable(errors);
    }
}

TEST_F(ImportTest, aFileThatIsNotThereIsNamed) {
    const QString absent = source.filePath(u"absent.xml"_s);
    EXPECT_FALSE(import(absent));
    EXPECT_TRUE(errors.contains(u"There is no file or folder %1."_s.arg(absent)))
        << qPrintable(errors);
}

TEST_F(ImportTest, aTextWithoutItsBooksSaysWhichOnesItHas) {
    EXPECT_FALSE(importText("<usx><book code=\"TOB\"/><chapter number=\"1\"/><para style=\"p\">"
                            "<verse number=\"1\"/>x</para></usx>"));
    EXPECT_TRUE(errors.contains(u"holds no verse of the 66 books. (left out, since they are none "
                                u"of the 66 books: TOB)"_s))
        << qPrintable(errors);
}
