// A file that was cut off while it was copied.
#include "plugins/import/ImportFixture.h"

using namespace Qt::StringLiterals;

namespace {

class TruncationTest : public FormatTest {};

// All but the verse that was cut are as they should be.
void expectBeginningOf(const QStringList& part, const QStringList& whole) {
    ASSERT_LE(part.size(), whole.size());
    for (qsizetype row = 0; row + 1 < part.size(); ++row)
        EXPECT_EQ(part[row], whole[row]);
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Each, TruncationTest, testing::ValuesIn(sampleFormats()), formatName);

TEST_P(TruncationTest, isAnErrorOrARemarkAtFiftyPlaces) {
    const QByteArray whole = GetParam().content(littleBible());
    ASSERT_TRUE(importText(whole)) << qPrintable(errors);
    const QStringList rows = stored();
    ASSERT_TRUE(QFile::remove(path));
    for (int place = 0; place < 50; ++place) {
        const QByteArray part = whole.first(whole.size() * place / 50);
        if (!importText(part)) {
            EXPECT_TRUE(filesIn(folder.path()).isEmpty());
            continue;
        }
        EXPECT_FALSE(GetParam().isXml) << part.constData();
        EXPECT_TRUE(part.endsWith('\n') || out.contains(u"it may be cut off"_s)) << qPrintable(out);
        expectBeginningOf(stored(), rows);
        ASSERT_TRUE(QFile::remove(path));
    }
}

TEST_P(TruncationTest, anErrorLeavesTheOldFile) {
    makeOldFile();
    const QByteArray whole = GetParam().content(littleBible());
    for (int place = 0; place < 50; place += 5) {
        if (importText(whole.first(whole.size() * place / 50)))
            break;
        expectOldFile();
    }
}
