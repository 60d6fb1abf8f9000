// Real Jet databases: as the source of an import, and in the place of the file that it makes.
#include "plugins/import/ImportFixture.h"
#include "plugins/jet/JetFixture.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray jetFile(const QList<QVariantList>& rows) {
    JetTableOutline table{
        u"tblMain"_s,
        {{u"ID"_s, JetType::Long},
         {u"book"_s, JetType::Long},
         {u"chapter"_s, JetType::Long},
         {u"verse"_s, JetType::Long},
         {u"body"_s, JetType::Memo},
         {u"note"_s, JetType::Memo}},
        {}};
    for (const QVariantList& row : rows)
        table.rows.append({row});
    JetFixture fixture(JetVersion::Jet4);
    fixture.add(table);
    return fixture.bytes();
}

class JetSourceTest : public ImportTest {
protected:
    QVariant note(const VerseAddress& address) const {
        return verseField(path, address, u"note"_s);
    }

    const QByteArray noted = jetFile(
        {{1, 1, 1, 1, u"In"_s, u"theirs"_s}, {2, 1, 1, 2, u"\u001E000:003And so"_s, QVariant()}});
};

} // namespace

TEST_F(JetSourceTest, givesItsVersesAndNotes) {
    ASSERT_TRUE(importText(noted, u"old.mdb"_s)) << qPrintable(errors);
    EXPECT_EQ(stored(), QStringList({u"Genesis 1:1 In"_s, u"Genesis 1:2 \u001E000:003And so"_s}));
    EXPECT_EQ(note({1, 1, 1}), u"theirs"_s);
    EXPECT_TRUE(note({1, 1, 2}).isNull());
    EXPECT_TRUE(out.contains(u"DARBY.mdb: 1 note(s) of the source stored\n"_s)) << qPrintable(out);
}

TEST_F(JetSourceTest, aNoteBeyondTheBooksIsKeptAndNamed) {
    const QByteArray beyond = jetFile(
        {{1, 1, 1, 1, u"In"_s, QVariant()}, {2, 67, 1, 2, u"not ours"_s, u"about Tobit"_s}});
    ASSERT_TRUE(importText(beyond, u"old.mdb"_s)) << qPrintable(errors);
    EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 In"_s));
    EXPECT_EQ(
        rowsOf(path, u"tblKeptNotes"_s), QList<QVariantList>({{67LL, 1LL, 2LL, u"about Tobit"_s}}));
    EXPECT_TRUE(out.contains(u"kept in tblKeptNotes: Book 67 1:2"_s)) << qPrintable(out);
}

TEST_F(JetSourceTest, notesWithoutAnyVerseAreNoTranslation) {
    EXPECT_FALSE(importText(jetFile({{1, 1, 1, 1, u""_s, u"a note"_s}}), u"old.mdb"_s));
    EXPECT_TRUE(errors.contains(u"holds no verse of the 66 books"_s)) << qPrintable(errors);
    EXPECT_TRUE(filesIn(folder.path()).isEmpty());
}

TEST_F(JetSourceTest, ownNotesComeBeforeItsNotes) {
    makeOldFile();
    ASSERT_TRUE(importText(noted, u"old.mdb"_s)) << qPrintable(errors);
    EXPECT_EQ(note({1, 1, 1}), u"mine\r\n\r\ntheirs"_s);
}

TEST_F(JetSourceTest, aJetFileInThePlaceOfTheDestinationKeepsItsNotes) {
    writeFile(folder.path(), u"DARBY.mdb"_s, noted);
    ASSERT_TRUE(importText("Gen\t1\t1\tNew\n")) << qPrintable(errors);
    EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 New"_s));
    EXPECT_EQ(note({1, 1, 1}), u"theirs"_s);
    EXPECT_TRUE(out.contains(u"1 note(s) carried over\n"_s)) << qPrintable(out);
    QFile original(folder.filePath(u"DARBY.mdb.jet"_s));
    ASSERT_TRUE(original.open(QIODevice::ReadOnly));
    EXPECT_EQ(original.readAll(), noted);
}

TEST_F(JetSourceTest, theDestinationItselfMayBeTheSource) {
    ASSERT_TRUE(import(writeFile(folder.path(), u"DARBY.mdb"_s, noted))) << qPrintable(errors);
    EXPECT_EQ(stored().size(), 2);
    EXPECT_EQ(note({1, 1, 1}), u"theirs"_s);
}

TEST_F(JetSourceTest, aDamagedOneInThePlaceOfTheDestinationStays) {
    const QByteArray damaged = noted.first(noted.size() / 2);
    writeFile(folder.path(), u"DARBY.mdb"_s, damaged);
    EXPECT_FALSE(importText("Gen\t1\t1\tNew\n"));
    EXPECT_TRUE(errors.contains(u"stays as it is, since its notes cannot be read"_s))
        << qPrintable(errors);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), damaged);
}

TEST_F(JetSourceTest, aDamagedSourceIsRefusedAtFiftyPlaces) {
    makeOldFile();
    for (int place = 1; place < 50; ++place) {
        EXPECT_FALSE(importText(noted.first(noted.size() * place / 50), u"old.mdb"_s)) << place;
        expectOldFile();
    }
}
