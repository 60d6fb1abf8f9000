// Comparison without regard to case, against a plain and slow way to do the same.
#include "store/TextMatch.h"

#include "StoreFixture.h"

#include <QElapsedTimer>
#include <random>

namespace {

bool isLike(const QString& text, const QString& pattern) {
    return LikePattern(pattern).matches(text.toStdString());
}

bool areEqual(const QString& text, const QString& other) {
    return compareFolded(text.toStdString(), folded(other)) == 0;
}

TEST(Like, starStandsForAnyRunOfCharacters) {
    EXPECT_TRUE(isLike(u"In the beginning"_s, u"*the*"_s));
    EXPECT_TRUE(isLike(u"In the beginning"_s, u"*In*"_s));
    EXPECT_TRUE(isLike(u"In the beginning"_s, u"*ning*"_s));
    EXPECT_TRUE(isLike(u"In the beginning"_s, u"in*ning"_s));
    EXPECT_TRUE(isLike(u""_s, u"*"_s));
    EXPECT_TRUE(isLike(u""_s, u"**"_s));
    EXPECT_FALSE(isLike(u"In the beginning"_s, u"*them*"_s));
    EXPECT_FALSE(isLike(u""_s, u"*a*"_s));
}

TEST(Like, thePatternCoversTheWholeText) {
    EXPECT_TRUE(isLike(u"light"_s, u"light"_s));
    EXPECT_FALSE(isLike(u"lights"_s, u"light"_s));
    EXPECT_FALSE(isLike(u"light"_s, u"lights"_s));
    EXPECT_TRUE(isLike(u"lights"_s, u"light*"_s));
    EXPECT_FALSE(isLike(u"a light"_s, u"light*"_s));
    EXPECT_FALSE(isLike(u"lights"_s, u"*light"_s));
    EXPECT_TRUE(isLike(u""_s, u""_s));
    EXPECT_FALSE(isLike(u"a"_s, u""_s));
}

TEST(Like, partsDoNotOverlap) {
    EXPECT_FALSE(isLike(u"aba"_s, u"ab*ba"_s));
    EXPECT_TRUE(isLike(u"abba"_s, u"ab*ba"_s));
    EXPECT_FALSE(isLike(u"aab"_s, u"*ab*ab*"_s));
    EXPECT_TRUE(isLike(u"abcabd"_s, u"*ab*abd"_s));
    EXPECT_TRUE(isLike(u"aaab"_s, u"*aab"_s));
}

TEST(Like, allOtherCharactersStandForThemselves) {
    for (const QString& character :
         {u"?"_s, u"#"_s, u"["_s, u"]"_s, u"%"_s, u"_"_s, u"\\"_s, u"!"_s, u"-"_s}) {
        EXPECT_TRUE(isLike(u"a"_s + character + u"b"_s, u"*"_s + character + u"*"_s));
        EXPECT_FALSE(isLike(u"a1b"_s, u"a"_s + character + u"b"_s)) << character.toStdString();
    }
}

TEST(Like, caseDoesNotCountInAnyScript) {
    for (const auto& [upper, lower] : std::initializer_list<std::pair<QString, QString>>{
             {u"LORD"_s, u"lord"_s},
             {u"DÉBUT"_s, u"début"_s},
             {u"ESPAÑA"_s, u"españa"_s},
             {u"ÄPFEL"_s, u"äpfel"_s},
             {u"ΛΌΓΟΣ"_s, u"λόγος"_s},
             {u"СЛОВО"_s, u"слово"_s},
             {u"Ⴀ"_s, u"ⴀ"_s},
             {u"𐐀"_s, u"𐐨"_s}}) {
        EXPECT_TRUE(areEqual(upper, lower)) << upper.toStdString();
        EXPECT_TRUE(isLike(u"x "_s + upper + u" y"_s, u"*"_s + lower + u"*"_s));
        EXPECT_TRUE(isLike(u"x "_s + lower + u" y"_s, u"*"_s + upper + u"*"_s));
    }
    EXPECT_TRUE(areEqual(u"σοφός"_s, u"ΣΟΦΟΣ"_s.replace(u"ΦΟ"_s, u"ΦΌ"_s)));
    EXPECT_FALSE(areEqual(u"é"_s, u"e"_s));
}

TEST(Like, theOtherFormsOfKAndSAreFound) {
    EXPECT_TRUE(isLike(u"a \u212Ain of \u017Fin"_s, u"*kin*"_s));
    EXPECT_TRUE(isLike(u"a \u212Ain of \u017Fin"_s, u"*sin*"_s));
    EXPECT_TRUE(isLike(u"xyz\u212Aabin"_s, u"*xyzkabin*"_s));
    EXPECT_TRUE(isLike(u"abc\u212Azq"_s, u"*abckzq*"_s));
    EXPECT_TRUE(isLike(u"ma\u017F\u017Fes"_s, u"*masse*"_s));
    EXPECT_TRUE(isLike(u"k"_s, u"\u212A"_s));
}

// The quick way relies on it: no other character folds to an ASCII one.
TEST(Like, onlyKAndSHaveFormsBeyondAscii) {
    for (char32_t character = 0x80; character < 0x110000; ++character) {
        const char32_t foldedCharacter = QChar::toCaseFolded(character);
        const bool isKnown = foldedCharacter == U'k' || foldedCharacter == U's';
        EXPECT_TRUE(foldedCharacter >= 0x80 || isKnown) << static_cast<uint>(character);
    }
}

TEST(Like, prefixesZerosAndStrayBytesAreCharactersLikeOthers) {
    EXPECT_TRUE(isLike(QChar(30) + u"005 010And he said"_s, u"*and he*"_s));
    EXPECT_TRUE(isLike(u"ab"_s + QChar(0) + u"CD"_s, u"*cd"_s));
    EXPECT_TRUE(isLike(u"ab"_s + QChar(0) + u"cd"_s, u"*b"_s + QChar(0) + u"C*"_s));
    EXPECT_FALSE(isLike(u"ab"_s + QChar(0) + u"cd"_s, u"ab"_s));
    for (const std::string& damaged :
         {std::string("\xFFlight\xC3"), std::string("\xC3light"), std::string("light\xE2\x84"),
          std::string("\xED\xA0\x80light"), std::string("\xF8\x88light\x80")})
        EXPECT_TRUE(LikePattern(u"*LIGHT*"_s).matches(damaged));
    EXPECT_FALSE(LikePattern(u"*\uFFFD*"_s).matches("\xFF"));
    for (const std::string& damaged :
         {std::string("\xC3\xC3\x89"), std::string("\xE2\xC3\xA9\xC3"),
          std::string("\xA9\xC3\x89\xA9")})
        EXPECT_TRUE(LikePattern(u"*é*"_s).matches(damaged));
    for (const std::string& damaged :
         {std::string("\xC3"), std::string("\xA9\xC3"), std::string("\xE9")})
        EXPECT_FALSE(LikePattern(u"*é*"_s).matches(damaged));
}

TEST(Like, halfOfASurrogatePairIsLikeNothing) {
    for (const QChar half : {QChar(0xD83D), QChar(0xDD4A)}) {
        const QString pattern = u"*"_s + half + u"*"_s;
        EXPECT_FALSE(isLike(u"Who?"_s, pattern));
        EXPECT_FALSE(isLike(u"\uFFFD"_s, pattern));
        EXPECT_FALSE(LikePattern(pattern).matches("\xED\xA0\xBD"));
        EXPECT_FALSE(LikePattern(pattern).matches("\xED\xB5\x8A"));
        EXPECT_FALSE(areEqual(u"?"_s, half));
    }
    EXPECT_TRUE(isLike(u"A \U0001F54A."_s, u"*\U0001F54A*"_s));
}

// The order of the engine's bytes does not matter here, only that of characters.
TEST(Compare, textsAreOrderedByTheirFoldedCharacters) {
    EXPECT_LT(compareFolded("abc", folded(u"ABD"_s)), 0);
    EXPECT_GT(compareFolded("b", folded(u"ABD"_s)), 0);
    EXPECT_LT(compareFolded("ab", folded(u"ABC"_s)), 0);
    EXPECT_GT(compareFolded("abc", folded(u"AB"_s)), 0);
    EXPECT_EQ(compareFolded("", folded(u""_s)), 0);
}

// Which heads of the text the pattern covers, one character of the pattern after the other.
bool isLikePlainly(const QString& text, const QString& pattern) {
    const auto fold = [](QChar character) {
        return QChar::toCaseFolded(char32_t(character.unicode()));
    };
    std::vector<bool> heads(static_cast<size_t>(text.size()) + 1, false);
    heads[0] = true;
    for (const QChar wanted : pattern) {
        std::vector<bool> longer(heads.size(), false);
        for (size_t length = 0; length < heads.size(); ++length) {
            const bool before = length > 0 && heads[length - 1];
            if (wanted == u'*')
                longer[length] = heads[length] || (length > 0 && longer[length - 1]);
            else
                longer[length] =
                    before && fold(text[static_cast<qsizetype>(length) - 1]) == fold(wanted);
        }
        heads = longer;
    }
    return heads.back();
}

QString randomText(std::mt19937& random, QStringView alphabet, int longest) {
    QString text;
    for (int length = static_cast<int>(random() % static_cast<unsigned>(longest)); length > 0;
         --length)
        text += alphabet[static_cast<qsizetype>(random() % static_cast<unsigned>(alphabet.size()))];
    return text;
}

TEST(Like, agreesWithThePlainWayOnRandomTexts) {
    std::mt19937 random(20);
    int matches = 0;
    for (int round = 0; round < 200000; ++round) {
        const QStringView alphabet = round % 2 ? u"abAB" : u"akKsſ\u212AéÉΣσς ";
        const QString text = randomText(random, alphabet, round % 7 == 0 ? 200 : 12);
        QString pattern = randomText(random, alphabet, 6);
        for (int stars = static_cast<int>(random() % 4); stars > 0; --stars)
            pattern.insert(static_cast<qsizetype>(random() % (pattern.size() + 1u)), u'*');
        const bool expected = isLikePlainly(text, pattern);
        matches += expected;
        ASSERT_EQ(isLike(text, pattern), expected)
            << text.toStdString() << " like " << pattern.toStdString();
    }
    EXPECT_GT(matches, 10000);
}

TEST(Like, randomBytesAreReadWithinTheirBounds) {
    std::mt19937 random(21);
    for (int round = 0; round < 100000; ++round) {
        std::string bytes(random() % 40, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random() % 3 ? random() : 'a' + random() % 3);
        const std::vector<char> exact(bytes.begin(), bytes.end()); // no terminator behind it
        const std::string_view text(exact.data(), exact.size());
        EXPECT_TRUE(LikePattern(u"*"_s).matches(text));
        LikePattern(u"*ab*c*"_s).matches(text);
        compareFolded(text, folded(u"aé"_s));
    }
}

TEST(Like, takesTimeLinearInTheText) {
    const QString text = u"a"_s.repeated(1000000);
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(isLike(text, u"*"_s + u"a"_s.repeated(300000) + u"b*"_s));
    EXPECT_FALSE(isLike(text, u"*"_s + u"a*"_s.repeated(300000) + u"b*"_s));
    EXPECT_FALSE(isLike(text, u"*ab"_s + u"a"_s.repeated(300000) + u"*"_s));
    EXPECT_FALSE(isLike(text, u"*"_s + u"a"_s.repeated(300000) + u"b"_s));
    EXPECT_FALSE(isLike(u"ab"_s.repeated(500000), u"*"_s + u"ab"_s.repeated(150000) + u" *"_s));
    EXPECT_LT(timer.elapsed(), 60000) << "quadratic time would be many minutes";
}

} // namespace
