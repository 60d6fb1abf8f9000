// Mark-up that was made to do harm.
#include "plugins/import/ImportFixture.h"

using namespace Qt::StringLiterals;

namespace {

QList<SampleFormat> xmlFormats() {
    QList<SampleFormat> formats;
    for (const SampleFormat& format : sampleFormats()) {
        if (format.isXml)
            formats.append(format);
    }
    return formats;
}

class MarkupTest : public FormatTest {
protected:
    // A text of two verses, with something put where the first one has "HERE".
    bool importWith(const QByteArray& what, const QByteArray& documentType = {}) {
        QByteArray content = GetParam().content(
            {plainVerse(u"Gen"_s, u"1"_s, u"1"_s, u"In HERE the"_s),
             plainVerse(u"Gen"_s, u"1"_s, u"2"_s, u"And"_s)});
        content.replace("HERE", what).replace("?>", "?>" + documentType);
        return importText(content);
    }

    void expectError(const QString& text) {
        EXPECT_TRUE(errors.contains(text)) << qPrintable(errors);
        EXPECT_TRUE(errors.contains(u"text.txt: line "_s)) << qPrintable(errors);
        expectOldFile();
    }

    void SetUp() override { makeOldFile(); }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Each, MarkupTest, testing::ValuesIn(xmlFormats()), formatName);

TEST_P(MarkupTest, deepNestingIsRead) {
    const int depth = 10'000;
    ASSERT_TRUE(
        importWith(QByteArray("<i>").repeated(depth) + "x" + QByteArray("</i>").repeated(depth)))
        << qPrintable(errors);
    EXPECT_EQ(stored(), QStringList({u"Genesis 1:1 In x the"_s, u"Genesis 1:2 And"_s}));
}

TEST_P(MarkupTest, nestingHasItsBounds) {
    EXPECT_FALSE(importWith(QByteArray("<i>").repeated(100'000)));
    expectError(u"The elements are nested deeper than 20000."_s);
}

TEST_P(MarkupTest, entitiesThatMultiplyAreRefused) {
    QByteArray type = "<!DOCTYPE x [<!ENTITY l0 \"lol\">";
    for (int level = 1; level < 12; ++level) {
        const QByteArray inner = "&l" + QByteArray::number(level - 1) + ";";
        type += "<!ENTITY l" + QByteArray::number(level) + " \"" + inner.repeated(10) + "\">";
    }
    EXPECT_FALSE(importWith("&l11;", type + "]>"));
    expectError(u"ntity"_s);
}

TEST_P(MarkupTest, externalEntitiesAreNeverFetched) {
    const QString secret = writeFile(source.path(), u"secret.txt"_s, "secret");
    const QByteArray type =
        "<!DOCTYPE x [<!ENTITY file SYSTEM \"file://" + secret.toUtf8() + "\">]>";
    EXPECT_FALSE(importWith("&file;", type));
    expectError(u"The entity \"file\" lies in another file, which is not read."_s);
}

TEST_P(MarkupTest, entitiesOfTheFileAreRead) {
    ASSERT_TRUE(importWith("&salt;", "<!DOCTYPE x [<!ENTITY salt \"sal\">]>"))
        << qPrintable(errors);
    EXPECT_EQ(stored().first(), u"Genesis 1:1 In sal the"_s);
}

TEST_P(MarkupTest, entitiesThatNobodyDeclaredAreRefused) {
    EXPECT_FALSE(importWith("&nbsp;"));
    expectError(u"nbsp"_s);
}

TEST_P(MarkupTest, aTagOfMegabytesIsRefused) {
    EXPECT_FALSE(importWith("<i n=\"" + QByteArray(20 << 20, 'x') + "\"/>"));
    expectError(u"No end of this text or tag within 8388608 bytes."_s);
}

TEST_P(MarkupTest, crossedTagsAreRefused) {
    EXPECT_FALSE(importWith("<i><b>x</i></b>"));
    expectError(u"Opening and ending tag mismatch."_s);
}

TEST_P(MarkupTest, unknownElementsKeepTheirWords) {
    ASSERT_TRUE(importWith("<unheard of=\"it\">not</unheard><x:y>now</x:y>")) << qPrintable(errors);
    EXPECT_EQ(stored().first(), u"Genesis 1:1 In notnow the"_s);
}

class LongLineTest : public FormatTest {};

INSTANTIATE_TEST_SUITE_P(Each, LongLineTest, testing::ValuesIn(sampleFormats()), formatName);

TEST_P(LongLineTest, aLineOfAHundredMegabytesIsRefused) {
    makeOldFile();
    QByteArray content = GetParam().content({plainVerse(u"Gen"_s, u"1"_s, u"1"_s, u"HERE"_s)});
    content.replace("HERE", QByteArray(100 << 20, 'x'));
    EXPECT_FALSE(importText(content));
    EXPECT_LT(errors.size(), 1000);
    expectOldFile();
}
