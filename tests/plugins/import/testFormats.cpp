// The same little Bible by every format.
#include "plugins/SmallModule.h"
#include "plugins/import/ImportFixture.h"

using namespace Qt::StringLiterals;

namespace {

QStringList expectedRows(bool hasMarks) {
    QStringList rows;
    for (const SampleVerse& verse : littleBible()) {
        const VerseAddress address{
            findBook(verse.book)->number, verse.chapter.toInt(), verse.verse.toInt()};
        const bool isPlain = hasMarks || !verse.expected.startsWith(QChar(30));
        const QString body = isPlain ? verse.expected : verse.expected.sliced(8);
        rows.append(verseName(address) + u' ' + body);
    }
    return rows;
}

// The verses of each book of a text.
QList<QList<SampleVerse>> booksOf(const QList<SampleVerse>& verses) {
    QList<QList<SampleVerse>> books;
    for (const SampleVerse& verse : verses) {
        if (books.isEmpty() || books.last().last().book != verse.book)
            books.append(QList<SampleVerse>());
        books.last().append(verse);
    }
    return books;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Each, FormatTest, testing::ValuesIn(sampleFormats()), formatName);

TEST_P(FormatTest, givesTheSameRowsAsEveryOther) {
    ASSERT_TRUE(importSample(GetParam(), littleBible())) << qPrintable(errors);
    EXPECT_EQ(stored(), expectedRows(GetParam().hasMarks));
}

TEST_P(FormatTest, tellsOfNothingThatIsAsItShouldBe) {
    ASSERT_TRUE(importSample(GetParam(), littleBible())) << qPrintable(errors);
    EXPECT_FALSE(out.contains(u"left out"_s)) << qPrintable(out);
    EXPECT_FALSE(out.contains(u"cut off"_s)) << qPrintable(out);
    EXPECT_TRUE(out.contains(u"DARBY.mdb: 8 rows, "_s)) << qPrintable(out);
}

class BookFilesTest : public FormatTest {};

INSTANTIATE_TEST_SUITE_P(
    Each, BookFilesTest,
    testing::Values(sampleFormat("usfm"), sampleFormat("usx"), sampleFormat("osis")), formatName);

TEST_P(BookFilesTest, aFolderGivesTheSameRowsAsOneFile) {
    int number = 0;
    for (const QList<SampleVerse>& book : booksOf(littleBible()))
        writeFile(
            source.path(), QString::number(number++) + QLatin1String(GetParam().fileName),
            GetParam().content(book));
    writeFile(source.path(), u"README.txt"_s, "About this text\n");
    ASSERT_TRUE(import(source.path()));
    EXPECT_EQ(stored(), expectedRows(true));
    EXPECT_TRUE(out.contains(u"no books in USFM or XML: README.txt\n"_s)) << qPrintable(out);
}

TEST_F(ImportTest, aSwordModuleGivesTheSameRows) {
    SmallModule module;
    module.entries = {
        {"Gen 1:1", "In the beginning God<note>Or</note><w>created</w> all."},
        {"Gen 1:2", "And darkness <transChange type=\"added\">was</transChange> there &amp; the "
                    "waters\xE2\x80\x99 face."},
        {"Gen 2:1", "Se\xC3\xB1or; \"x\", y|z"},
        {"Ps 3:1", "<title type=\"psalm\" canonical=\"true\">A Psalm of David.</title>"
                   "<divineName>LORD</divineName>, how are they increased!"},
        {"Ps 3:2", "Many there be."},
        {"Matt 5:3", "<q who=\"Jesus\">Blessed<note>Or</note> are they.</q>"},
        {"Luke 8:45", "And Jesus said, <q who=\"Jesus\">Who touched me?</q> When all denied, Peter "
                      "said."},
        {"Rev 22:21", "Amen."}};
    module.writeTo(source.path());
    ASSERT_TRUE(import(source.path()));
    EXPECT_EQ(stored(), expectedRows(true));
}
