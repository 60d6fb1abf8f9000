// A SWORD module with a file that was cut off while it was copied.
#include "plugins/import/CompressedModule.h"
#include "plugins/import/ImportFixture.h"

#include <QDirIterator>

using namespace Qt::StringLiterals;

namespace {

struct Layout {
    const char* name;
    void (*write)(const SmallModule& module, const QString& folder);
    int entrySize; // of an index of verses
};

void writeRaw(const SmallModule& module, const QString& folder) {
    module.writeTo(folder);
}

void PrintTo(const Layout& layout, std::ostream* stream) {
    *stream << layout.name;
}

class ModuleTruncationTest : public ImportTest, public testing::WithParamInterface<Layout> {
protected:
    void SetUp() override {
        SmallModule module;
        module.entries = {
            {"Gen 1:1", "In the beginning"},
            {"Mal 4:6", "lest I come"},
            {"Matt 1:1", "The book"},
            {"Rev 22:21", "Amen"}};
        GetParam().write(module, source.path());
        ASSERT_TRUE(import(source.path())) << qPrintable(errors);
        m_rows = stored();
        ASSERT_EQ(m_rows.size(), 4);
        ASSERT_TRUE(QFile::remove(path));
    }

    QStringList dataFiles() const {
        QStringList files;
        QDirIterator walk(source.filePath(u"modules"_s), QDir::Files, QDirIterator::Subdirectories);
        while (walk.hasNext())
            files.append(walk.next());
        return files;
    }

    // An error, and nothing made; or all the verses, for a cut that takes none away.
    void expectNoSilence(const QString& file, qint64 size) {
        QFile data(file);
        ASSERT_TRUE(data.open(QIODevice::ReadWrite));
        const QByteArray whole = data.readAll();
        ASSERT_TRUE(data.resize(size));
        if (import(source.path())) {
            EXPECT_EQ(stored(), m_rows) << qPrintable(file) << ' ' << size;
            ASSERT_TRUE(QFile::remove(path));
        } else {
            EXPECT_TRUE(filesIn(folder.path()).isEmpty());
            EXPECT_TRUE(
                errors.contains(u"damaged"_s) || errors.contains(u"cut off"_s)
                || errors.contains(u"has no files"_s))
                << qPrintable(errors);
        }
        ASSERT_TRUE(data.seek(0) && data.write(whole) == whole.size());
    }

    QStringList m_rows;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Each, ModuleTruncationTest,
    testing::Values(Layout{"raw", writeRaw, 6}, Layout{"compressed", writeCompressed, 10}),
    [](const auto& layout) { return std::string(layout.param.name); });

TEST_P(ModuleTruncationTest, losesNoVerseInSilenceAtFiftyPlaces) {
    const QStringList files = dataFiles();
    ASSERT_GE(files.size(), 4);
    for (const QString& file : files) {
        const qint64 size = QFileInfo(file).size();
        for (int place = 0; place < 50; ++place)
            expectNoSilence(file, size * place / 50);
    }
}

TEST_P(ModuleTruncationTest, anIndexWithoutItsLastEntriesIsAnError) {
    for (const QString& file : dataFiles()) {
        if (!file.endsWith(u".vss"_s) && !file.endsWith(u"zv"_s))
            continue;
        const qint64 entries = QFileInfo(file).size() / GetParam().entrySize;
        for (const qint64 left : {entries - 1, entries / 2, qint64(1), qint64(0)}) {
            expectNoSilence(file, left * GetParam().entrySize);
            EXPECT_TRUE(errors.contains(file + u" is cut off"_s)) << qPrintable(errors);
        }
    }
}
