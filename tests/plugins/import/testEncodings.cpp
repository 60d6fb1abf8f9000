#include "plugins/import/ImportFixture.h"

#include "readers/TextLines.h"

#include <QStringConverter>

using namespace Qt::StringLiterals;

namespace {

QByteArray encoded(const SampleFormat& format, QStringConverter::Encoding encoding, bool hasMark) {
    QString text = QString::fromUtf8(format.content(littleBible()));
    text.replace(u" encoding=\"UTF-8\""_s, QString());
    QStringEncoder encoder(
        encoding, hasMark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
    return encoder(text);
}

class EncodingTest : public FormatTest {
protected:
    // Right, or refused; never garbage.
    void expectRightOrRefused(const QByteArray& content) {
        if (!importText(content, QString::fromLatin1(GetParam().fileName)))
            return expectNothingMade();
        EXPECT_EQ(stored().size(), 8);
        EXPECT_EQ(stored().value(2), u"Genesis 2:1 Señor; \"x\", y|z"_s);
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Each, EncodingTest, testing::ValuesIn(sampleFormats()), formatName);

TEST_P(EncodingTest, readsUtf16WithAMark) {
    for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
        const QByteArray content = encoded(GetParam(), encoding, true);
        ASSERT_TRUE(importText(content)) << qPrintable(errors);
        EXPECT_EQ(stored().value(2), u"Genesis 2:1 Señor; \"x\", y|z"_s);
    }
}

TEST_P(EncodingTest, utf16WithoutAMarkIsNeverGarbage) {
    for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE})
        expectRightOrRefused(encoded(GetParam(), encoding, false));
}

TEST_P(EncodingTest, readsUtf8WithAMark) {
    ASSERT_TRUE(importText("\xEF\xBB\xBF" + GetParam().content(littleBible())))
        << qPrintable(errors);
    EXPECT_EQ(stored().size(), 8);
}

TEST_P(EncodingTest, latin1IsReadAsSuchWhereNoHeaderSaysOtherwise) {
    QString text = QString::fromUtf8(GetParam().content(littleBible()));
    const QByteArray content = text.replace(u'’', u'\'').toLatin1();
    EXPECT_EQ(importText(content), !GetParam().isXml) << qPrintable(errors);
    if (GetParam().isXml) {
        EXPECT_TRUE(errors.contains(u"Encountered incorrectly encoded content."_s))
            << qPrintable(errors);
        return expectNothingMade();
    }
    EXPECT_EQ(stored().value(2), u"Genesis 2:1 Señor; \"x\", y|z"_s);
    EXPECT_TRUE(out.contains(u"is not in UTF-8; it was read as Latin-1\n"_s)) << qPrintable(out);
}

TEST_P(EncodingTest, nullBytesAreDroppedOrRefused) {
    QByteArray content = GetParam().content(littleBible());
    content.replace("Many there", QByteArray("Many\0 there", 11));
    if (importText(content))
        EXPECT_EQ(stored().value(4), u"Psalms 3:2 Many there be."_s);
    else
        expectNothingMade();
}

TEST(TextLines, readsTheApostropheOfWindows) {
    QTemporaryDir folder;
    TextLines lines(writeFile(folder.path(), u"w.txt"_s, "the waters\x92 face\n"));
    EXPECT_EQ(lines.next(), u"the waters\u2019 face"_s);
}

TEST(TextLines, knowsEveryLineEnd) {
    QTemporaryDir folder;
    TextLines lines(writeFile(folder.path(), u"w.txt"_s, "a\r\nb\rc\n\nd\r"));
    for (const QString& line : {u"a"_s, u"b"_s, u"c"_s, u""_s, u"d"_s})
        EXPECT_EQ(lines.next(), line);
    EXPECT_EQ(lines.next(), std::nullopt);
    EXPECT_EQ(lines.number(), 5);
    EXPECT_TRUE(lines.remarks().isEmpty());
}

TEST(TextLines, aLineEndBetweenTwoPiecesIsOne) {
    QTemporaryDir folder;
    const qsizetype piece = 64 << 10;
    TextLines lines(
        writeFile(folder.path(), u"w.txt"_s, QByteArray(piece - 1, 'x') + "\r\n" + "second\n"));
    EXPECT_EQ(lines.next()->size(), piece - 1);
    EXPECT_EQ(lines.next(), u"second"_s);
    EXPECT_EQ(lines.next(), std::nullopt);
}
