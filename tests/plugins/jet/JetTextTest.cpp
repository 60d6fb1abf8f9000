// How texts are written in the file.
#include "plugins/jet/JetTest.h"

namespace {

class JetTexts : public JetTest {
protected:
    QVariant text(JetVersion version, const QByteArray& bytes) const {
        return converted(withField(version, {u"x"_s, JetType::Text, 255}, {bytes}))
            .value(0)
            .value(0);
    }
};

TEST_F(JetTexts, aCompressedTextHasOneByteACharacter) {
    EXPECT_EQ(
        text(
            JetVersion::Jet4, "\xff\xfe"
                              "caf\xe9"),
        u"caf\xe9"_s);
    EXPECT_EQ(text(JetVersion::Jet4, "\xff\xfe"), u""_s);
}

TEST_F(JetTexts, aZeroByteTogglesTheCompression) {
    const QByteArray bytes(
        "\xff\xfe"
        "ab\0\x1c\x04\x38\x04\0cd",
        12);
    EXPECT_EQ(text(JetVersion::Jet4, bytes), u"ab\u041c\u0438cd"_s);
}

TEST_F(JetTexts, aMemoCanBeCompressedToo) {
    const QByteArray bytes(
        "\xff\xfe"
        "ab\0\x1c\x04\0cd",
        10);
    EXPECT_EQ(
        converted(withField(JetVersion::Jet4, {u"x"_s, JetType::Memo}, {bytes})),
        QList<QVariantList>({{u"ab\u041c"
                              "cd"_s}}));
}

TEST_F(JetTexts, surrogatePairsStayWhole) {
    EXPECT_EQ(
        converted(withField(
            JetVersion::Jet4, {u"x"_s, JetType::Text, 255}, {u"a\U0001F54E\U00010332z"_s})),
        QList<QVariantList>({{u"a\U0001F54E\U00010332z"_s}}));
}

TEST_F(JetTexts, everyCharacterOfTheFirstPlaneComesOver) {
    QString all;
    for (int code = 1; code < 0x10000; ++code) {
        if (code < 0xd800 || code > 0xdfff)
            all.append(QChar(code));
    }
    const QList<QVariantList> rows =
        converted(withField(JetVersion::Jet4, {u"x"_s, JetType::Memo}, {all}));
    EXPECT_TRUE(rows == QList<QVariantList>({{all}}));
}

TEST_F(JetTexts, oldTextsAreOfTheCodePage) {
    EXPECT_EQ(
        text(JetVersion::Jet3, "\x80\x93quoted\x94 \xe9\xff"),
        u"\u20ac\u201cquoted\u201d \xe9\xff"_s);
}

TEST_F(JetTexts, bytesThatTheCodePageLeavesOpenPassThrough) {
    EXPECT_EQ(text(JetVersion::Jet3, "\x81\x8d\x8f\x90\x9d"), u"\u0081\u008d\u008f\u0090\u009d"_s);
}

TEST_F(JetTexts, anotherCodePageIsRespected) {
    JetFixture fixture(JetVersion::Jet3, 0, 1251);
    fixture.add({u"Table1"_s, {{u"x"_s, JetType::Text, 50}}, {{{QByteArray("\xcc\xe8\xf0")}}}});
    EXPECT_EQ(converted(fixture), QList<QVariantList>({{u"\u041c\u0438\u0440"_s}}));
}

TEST_F(JetTexts, aCodePageOfSeveralBytesACharacterIsRefused) {
    JetFixture fixture(JetVersion::Jet3, 0, 932);
    fixture.add({u"Table1"_s, {{u"x"_s, JetType::Text, 50}}, {{{u"a"_s}}}});
    EXPECT_EQ(
        refusal(fixture.bytes()),
        u"kjv.mdb is written in the code page 932, which this program does not read."_s);
}

TEST_F(JetTexts, halfACharacterIsDamage) {
    EXPECT_EQ(
        refusal(
            withField(JetVersion::Jet4, {u"x"_s, JetType::Text, 50}, {QByteArray("abc")}).bytes()),
        u"kjv.mdb is damaged: table Table1, 1 of 1 rows readable; a value of \"x\" is no text."_s);
}

} // namespace
