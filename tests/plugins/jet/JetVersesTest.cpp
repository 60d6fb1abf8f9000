// Importing a Jet database as a translation.
#include "jet/JetVerses.h"
#include "plugins/jet/JetTest.h"

#include <QFile>

namespace {

class JetVersesTest : public JetTest {
protected:
    void write(const JetTableOutline& table, JetVersion version = JetVersion::Jet4) const {
        JetFixture fixture(version);
        fixture.add(table);
        JetTest::write(fixture.bytes());
    }

    QList<Verse> verses(QStringList* remarks = nullptr) const {
        JetVerses source(path());
        QList<Verse> result;
        while (const std::optional<Verse> verse = source.next())
            result.append(*verse);
        EXPECT_EQ(source.fraction(), 1);
        if (remarks)
            *remarks = source.remarks();
        return result;
    }
};

TEST_F(JetVersesTest, versesComeInTheTablesOrderWithBodyAndNote) {
    for (const JetVersion version : {JetVersion::Jet3, JetVersion::Jet4}) {
        write(verseTable(), version);
        const QList<Verse> read = verses();
        ASSERT_EQ(read.size(), 4);
        for (int row = 0; row < 4; ++row) {
            const QVariantList values = verseTable().rows[row].values;
            EXPECT_EQ(
                read[row].address,
                (VerseAddress{values[1].toInt(), values[2].toInt(), values[3].toInt()}));
            EXPECT_EQ(read[row].body, values[4].toString());
            EXPECT_EQ(read[row].note, values[5].toString());
        }
        EXPECT_TRUE(read[0].note.isNull());
        EXPECT_EQ(read[2].body.front(), QChar(30));
    }
}

TEST_F(JetVersesTest, addressesOutsideOfTheBooksAreLeftOutAndNamed) {
    JetTableOutline table = verseTable();
    table.rows[0].values[1] = 67;
    table.rows[3].values[1] = 0;
    write(table);
    QStringList remarks;
    EXPECT_EQ(verses(&remarks).size(), 2);
    EXPECT_EQ(
        remarks, QStringList({u"left out, since their address is none of the 66 books: 2 verse(s) "
                              u"(book 67, 1:1; book 0, 22:21)"_s}));
}

TEST_F(JetVersesTest, theNoteOfAVerseThatIsLeftOutIsNotLost) {
    JetTableOutline table = verseTable();
    table.rows[1].values[1] = 67;
    write(table);
    const QList<Verse> read = verses();
    ASSERT_EQ(read.size(), 4);
    EXPECT_EQ(read[1].address, (VerseAddress{67, 1, 2}));
    EXPECT_EQ(read[1].body, QString());
    EXPECT_EQ(read[1].note, verseTable().rows[1].values[5].toString());
}

TEST_F(JetVersesTest, aVerseWithoutTextIsLeftOutUnlessItHasANote) {
    JetTableOutline table = verseTable();
    table.rows[0].values[4] = QVariant();
    table.rows[1].values[4] = u""_s;
    write(table);
    QStringList remarks;
    const QList<Verse> read = verses(&remarks);
    ASSERT_EQ(read.size(), 3);
    EXPECT_EQ(read[0].body, QString());
    EXPECT_FALSE(read[0].note.isEmpty());
    EXPECT_EQ(remarks, QStringList({u"left out, since they have no text: 1 verse(s)"_s}));
}

TEST_F(JetVersesTest, numbersMayBeHeldAsTexts) {
    JetTableOutline table = verseTable();
    table.fields[1] = {u"Book"_s, JetType::Text, 20};
    for (JetRowOutline& row : table.rows)
        row.values[1] = row.values[1].toString();
    write(table);
    EXPECT_EQ(verses()[3].address, (VerseAddress{66, 22, 21}));
}

TEST_F(JetVersesTest, aTableWithoutNotesHasVersesWithoutNotes) {
    JetTableOutline table = verseTable();
    table.fields.removeLast();
    for (JetRowOutline& row : table.rows)
        row.values.removeLast();
    write(table);
    EXPECT_TRUE(verses()[1].note.isNull());
}

TEST_F(JetVersesTest, aMissingTableIsAnError) {
    JetTableOutline table = verseTable();
    table.name = u"Verses"_s;
    write(table);
    EXPECT_EQ(errorTextOf([&] { verses(); }), u"kjv.mdb has no table tblMain."_s);
}

TEST_F(JetVersesTest, aMissingFieldIsAnError) {
    JetTableOutline table = verseTable();
    table.fields[4].name = u"text"_s;
    write(table);
    EXPECT_EQ(
        errorTextOf([&] { verses(); }), u"kjv.mdb has no field \"body\" in its table tblMain."_s);
}

TEST_F(JetVersesTest, missingRowsAreAnErrorAtTheEnd) {
    JetTableOutline table = verseTable();
    table.claimedRows = 31102;
    write(table);
    EXPECT_EQ(
        errorTextOf([&] { verses(); }),
        u"kjv.mdb is damaged: table tblMain, 4 of 31102 rows readable."_s);
}

TEST_F(JetVersesTest, onlyAJetDatabaseIsOne) {
    JetTest::write("SQLite format 3");
    EXPECT_FALSE(isJetFile(path()));
    EXPECT_EQ(errorTextOf([&] { verses(); }), u"kjv.mdb is no Jet database."_s);
    EXPECT_FALSE(isJetFile(path(u"nowhere.mdb"_s)));
    write(verseTable());
    EXPECT_TRUE(isJetFile(path()));
}

} // namespace
