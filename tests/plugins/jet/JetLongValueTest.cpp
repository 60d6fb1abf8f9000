// Memos and objects, in the row, on a page, or on a chain of pages.
#include "plugins/jet/JetTest.h"

namespace {

class JetLongValues : public JetTest, public testing::WithParamInterface<JetVersion> {
protected:
    JetLongValues()
        : fixture(withField(GetParam(), {u"x"_s, JetType::Memo}, {u"long "_s.repeated(5000)}))
        , good(fixture.bytes())
        , firstPage(fixture.longValuePages(0).last())
        , lastPage(fixture.longValuePages(0).first())
        , pieceOfFirst(pieceOffset(firstPage))
        , pieceOfLast(pieceOffset(lastPage)) {}

    // The bytes with a pointer to another page.
    QByteArray pointing(qsizetype at, qsizetype toPage) const {
        const auto page = static_cast<quint32>(toPage / fixture.format().pageSize);
        return QByteArray(good).replace(at, 4, longBytes(page << 8));
    }

    void expectBroken(const QByteArray& bytes) const {
        EXPECT_EQ(
            refusal(bytes), u"kjv.mdb is damaged: table Table1, 1 of 1 rows readable; "
                            u"the chain of a long value is broken."_s);
    }

    JetFixture fixture;
    QByteArray good;
    qsizetype firstPage; // of the chain
    qsizetype lastPage;
    qsizetype pieceOfFirst; // begins with the pointer to the next piece
    qsizetype pieceOfLast;

private:
    qsizetype pieceOffset(qsizetype page) const {
        const qsizetype slot = page + fixture.format().rowCount + 2;
        return page + uchar(good[slot]) + 256 * uchar(good[slot + 1]);
    }
};

INSTANTIATE_TEST_SUITE_P(
    , JetLongValues, testing::Values(JetVersion::Jet3, JetVersion::Jet4),
    [](const auto& suite) { return suite.param == JetVersion::Jet3 ? "Jet3" : "Jet4"; });

TEST_P(JetLongValues, memosOfAllSizesComeOverWhole) {
    QVariantList texts;
    QList<QVariantList> expected;
    for (const int size : {0, 1, 31, 32, 33, 64, 65, 2030, 2031, 2040, 4096, 200001, 1000000}) {
        QString text;
        for (int at = 0; at < size; ++at)
            text.append(QChar(0x20 + (at * 7 + at / 100) % 0x5f));
        texts.append(text);
        expected.append({text});
    }
    EXPECT_TRUE(converted(withField(GetParam(), {u"x"_s, JetType::Memo}, texts)) == expected);
}

TEST_P(JetLongValues, aChainThatLoopsIsDamage) {
    expectBroken(pointing(pieceOfLast, firstPage));
    expectBroken(pointing(pieceOfFirst, firstPage));
}

TEST_P(JetLongValues, aChainThatEndsTooSoonIsDamage) {
    expectBroken(QByteArray(good).replace(pieceOfFirst, 4, longBytes(0)));
}

TEST_P(JetLongValues, aChainThatEndsTooLateIsDamage) {
    const QByteArray size = longBytes(GetParam() == JetVersion::Jet3 ? 25000 : 50000);
    const qsizetype inRow = good.indexOf(size, fixture.dataPages(0).first());
    ASSERT_GT(inRow, 0);
    expectBroken(QByteArray(good).replace(inRow, 4, longBytes(3000)));
}

TEST_P(JetLongValues, aChainIntoAnotherKindOfPageIsDamage) {
    const qsizetype data = fixture.dataPages(0).first();
    EXPECT_EQ(
        refusal(pointing(pieceOfFirst, data)),
        u"kjv.mdb is damaged: table Table1, 1 of 1 rows readable; page %1 holds no long values."_s
            .arg(data / fixture.format().pageSize));
    EXPECT_EQ(
        refusal(QByteArray(good).replace(pieceOfFirst, 4, longBytes(0x7fffff00))),
        u"kjv.mdb is damaged: table Table1, 1 of 1 rows readable; the file has no page 8388607."_s);
}

TEST_P(JetLongValues, aRowThatIsNotThereIsDamage) {
    const auto page = static_cast<quint32>(lastPage / fixture.format().pageSize);
    EXPECT_EQ(
        refusal(QByteArray(good).replace(pieceOfFirst, 4, longBytes(page << 8 | 1))),
        u"kjv.mdb is damaged: table Table1, 1 of 1 rows readable; "
        u"a pointer leads to a row that is not there."_s);
}

TEST_P(JetLongValues, aValueBeyondReasonIsDamage) {
    const QByteArray size = longBytes(GetParam() == JetVersion::Jet3 ? 25000 : 50000);
    const qsizetype inRow = good.indexOf(size, fixture.dataPages(0).first());
    EXPECT_EQ(
        refusal(QByteArray(good).replace(inRow, 4, longBytes(0x3fffffff))),
        u"kjv.mdb is damaged: table Table1, 1 of 1 rows readable; "
        u"a long value claims 1073741823 bytes."_s);
}

} // namespace
