// Files with random damage, always the same.
#include "plugins/import/ImportFixture.h"

#include "basic/Error.h"
#include "readers/OpenSource.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {

// Pieces that mean something to one of the formats.
const QList<QByteArray> Pieces{"<",         ">",
                               "\"",        "&",
                               "\\v ",      "\\c 1",
                               "\\f ",      "\\wj ",
                               "\\*",       "|",
                               "\n",        "<verse>",
                               "</",        "/>",
                               "\t",        ",",
                               "-",         QByteArray(1, '\0'),
                               "\xFF",      "\xC3",
                               ":",         "999999999999",
                               "<note>",    "sID=\"a\"",
                               "eID=\"a\"", "\\id XXX",
                               "\x1E",      "]]>",
                               "<![CDATA[", "<!--",
                               "&#0;"};

class RandomDamageTest : public FormatTest {
protected:
    int below(qsizetype bound) {
        return std::uniform_int_distribution<int>(0, static_cast<int>(bound) - 1)(m_random);
    }

    QByteArray damaged(QByteArray content) {
        for (int count = below(4) + 1; count > 0; --count) {
            const int at = below(content.size());
            const int length = std::min(below(30), static_cast<int>(content.size()) - at);
            switch (below(4)) {
            case 0:
                content.remove(at, length);
                break;
            case 1:
                content.insert(at, Pieces[below(Pieces.size())]);
                break;
            case 2:
                content.insert(below(content.size()), content.mid(at, length));
                break;
            default:
                content[at] = static_cast<char>(below(256));
            }
        }
        return content;
    }

    std::mt19937 m_random{7};
};

// Walks all verses, each of which must be one.
void readAll(const QString& path) {
    const std::unique_ptr<VerseSource> source = openVerseSource(path);
    while (const std::optional<Verse> verse = source->next()) {
        EXPECT_TRUE(verse->address.book >= 1 && verse->address.book <= 66);
        EXPECT_GE(verse->address.chapter, 1);
        EXPECT_GE(verse->address.verse, 1);
        EXPECT_FALSE(verse->body.isEmpty());
        EXPECT_GE(source->fraction(), 0);
        EXPECT_LE(source->fraction(), 1);
    }
    for (const QString& remark : source->remarks())
        EXPECT_LT(remark.size(), 10'000);
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Each, RandomDamageTest, testing::ValuesIn(sampleFormats()), formatName);

TEST_P(RandomDamageTest, endsInVersesOrAnErrorThatNamesTheFile) {
    const QByteArray whole = GetParam().content(littleBible());
    int refused = 0;
    for (int round = 0; round < 1000; ++round) {
        const QString file = writeFile(source.path(), u"damaged.txt"_s, damaged(whole));
        try {
            readAll(file);
        } catch (const Error& error) {
            ++refused;
            EXPECT_TRUE(error.text().startsWith(u"damaged.txt:"_s)) << qPrintable(error.text());
        }
        ASSERT_FALSE(HasFailure()) << "in round " << round;
    }
    EXPECT_LT(refused, 1000);
}
