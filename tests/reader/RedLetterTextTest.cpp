#include "core/Settings.h"
#include "reader/PageComposer.h"
#include "support/ProgramFixture.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace {

class RedLetter : public ProgramFixture {
protected:
    static QString marked(const QString& rest) { return QChar(30) + rest; }
};

} // namespace

TEST_F(RedLetter, aTextWithoutThePrefixIsGivenAsItStands) {
    EXPECT_EQ(RedLetterText(u"Jesus wept."_s, true), u"Jesus wept."_s);
    EXPECT_EQ(RedLetterText(u"Jesus wept."_s, false), u"Jesus wept."_s);
    EXPECT_EQ(RedLetterText({}, true), QString());
}

TEST_F(RedLetter, theRunOfThePrefixIsReddened) {
    EXPECT_EQ(
        RedLetterText(marked(u"004:003he saGO therefore"_s), true),
        u"he s\\cf2aGO \\cf1 therefore"_s);
}

TEST_F(RedLetter, eachNumberHasThreeDigitsAndTheSignBetweenThemIsIgnored) {
    for (const QString& prefix : {u"004 003"_s, u"0049003"_s, u"004x003"_s})
        EXPECT_EQ(
            RedLetterText(marked(prefix + u"he saGO therefore"_s), true),
            u"he s\\cf2aGO \\cf1 therefore"_s);
    EXPECT_EQ(RedLetterText(marked(u"001:0012345"_s), true), u"2\\cf23 \\cf145"_s);
}

TEST_F(RedLetter, withoutColourThePrefixIsRemoved) {
    EXPECT_EQ(RedLetterText(marked(u"004:003he saGO"_s), false), u"he saGO"_s);
}

TEST_F(RedLetter, whereTheUserHasSwitchedItOffNoCodeIsWritten) {
    ShowRedLetter = 0;
    EXPECT_EQ(RedLetterText(marked(u"000:002Go forth"_s), true), u"Go forth"_s);
}

TEST_F(RedLetter, aRunBeyondTheTextEndsWithIt) {
    EXPECT_EQ(RedLetterText(marked(u"002:900abcd"_s), true), u"ab\\cf2cd \\cf1"_s);
    EXPECT_EQ(RedLetterText(marked(u"900:002abcd"_s), true), u"abcd\\cf2 \\cf1"_s);
}

TEST_F(RedLetter, lettersForDigitsCountAsZero) {
    EXPECT_EQ(RedLetterText(marked(u"abc:defabcd"_s), true), u"\\cf2 \\cf1abcd"_s);
}

TEST_F(RedLetter, anImpossibleRunGivesTheStoredText) {
    const QString text = marked(u"-12:002abcd"_s);
    EXPECT_EQ(RedLetterText(text, true), text);
}

TEST_F(RedLetter, aPrefixThatIsCutShortGivesAnEmptyText) {
    for (const QString& rest : {u""_s, u"0"_s, u"000:00"_s}) {
        EXPECT_EQ(RedLetterText(marked(rest), false), QString());
        EXPECT_EQ(RedLetterText(marked(rest), true), u"\\cf2 \\cf1"_s);
    }
}

TEST_F(RedLetter, aMarkedTextThatIsEmptyIsGivenBackAsItIsStored) {
    const QString text = marked(u"000:000"_s);
    EXPECT_EQ(RedLetterText(text, false), text);
}

TEST_F(RedLetter, noTextBreaksIt) {
    QRandomGenerator random(20240101);
    const QString alphabet = u"0123456789:-+. \u001eabé漢\\{}"_s;
    for (int round = 0; round < 100'000; ++round) {
        QString text = random.bounded(4) ? QString(QChar(30)) : QString();
        const int length = random.bounded(24);
        for (int place = 0; place < length; ++place)
            text += alphabet[random.bounded(static_cast<int>(alphabet.size()))];
        const QString plain = RedLetterText(text, false);
        const QString coloured = RedLetterText(text, true);
        ASSERT_LE(plain.size(), text.size());
        ASSERT_LE(coloured.size(), text.size() + 9);
        if (!text.startsWith(QChar(30))) {
            ASSERT_EQ(plain, text);
            ASSERT_EQ(coloured, text);
        }
    }
}
