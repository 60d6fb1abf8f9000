// A counter goes on where it stood.
#include "plugins/jet/JetTest.h"

namespace {

class JetCounters : public JetTest {
protected:
    // A table of topics with these numbers.
    void convert(
        const QList<JetRowOutline>& rows, qint32 lastNumber,
        const QString& name = u"tblTopicName"_s, JetVersion version = JetVersion::Jet4) const {
        JetFixture fixture(version);
        fixture.add(
            {name,
             {{u"unique"_s, JetType::Long, 0, true}, {u"topicname"_s, JetType::Text, 100}},
             rows,
             lastNumber});
        converted(fixture, name);
    }
};

TEST_F(JetCounters, theNextNumberSurvives) {
    for (const JetVersion version : {JetVersion::Jet3, JetVersion::Jet4}) {
        convert({{{1, u"a"_s}}, {{5, u"b"_s}}}, 5, u"tblTopicName"_s, version);
        EXPECT_EQ(numberOfNewRow(path(), u"tblTopicName"_s), 6);
    }
}

TEST_F(JetCounters, numbersOfDeletedLastRowsAreNotGivenAgain) {
    convert({{{1, u"a"_s}}, {{2, u"b"_s}, JetRowOutline::Deleted}}, 17);
    EXPECT_EQ(numberOfNewRow(path(), u"tblTopicName"_s), 18);
}

TEST_F(JetCounters, anEmptyTableGoesOnToo) {
    convert({}, 41);
    EXPECT_EQ(numberOfNewRow(path(), u"tblTopicName"_s), 42);
}

TEST_F(JetCounters, aCounterBehindItsRowsIsSetRight) {
    convert({{{1, u"a"_s}}, {{30, u"b"_s}}}, 2);
    EXPECT_EQ(numberOfNewRow(path(), u"tblTopicName"_s), 31);
}

TEST_F(JetCounters, aCounterOutOfOrderStillCounts) {
    convert({{{9, u"a"_s}}, {{2, u"b"_s}}}, 12);
    EXPECT_EQ(
        rowsOf(path(), u"tblTopicName"_s),
        QList<QVariantList>({{number(2), u"b"_s}, {number(9), u"a"_s}}));
    EXPECT_EQ(numberOfNewRow(path(), u"tblTopicName"_s), 13);
}

TEST_F(JetCounters, numbersThatAreThereTwiceStayAsTheyAre) {
    convert({{{9, u"a"_s}}, {{9, u"b"_s}}, {{QVariant(), u"c"_s}}}, 12);
    EXPECT_EQ(
        rowsOf(path(), u"tblTopicName"_s),
        QList<QVariantList>({{number(9), u"a"_s}, {number(9), u"b"_s}, {QVariant(), u"c"_s}}));
}

TEST_F(JetCounters, versesKeepTheirOrderWhateverTheirNumbers) {
    JetTableOutline verses = verseTable();
    std::swap(verses.rows[0], verses.rows[3]);
    JetFixture fixture(JetVersion::Jet4);
    fixture.add(verses);
    QVariantList numbers;
    for (const QVariantList& row : converted(fixture, u"tblMain"_s))
        numbers.append(row[0]);
    EXPECT_EQ(numbers, QVariantList({number(4), number(2), number(3), number(1)}));
}

} // namespace
