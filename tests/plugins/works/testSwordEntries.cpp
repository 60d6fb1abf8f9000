#include "plugins/works/SmallDictionary.h"

#include "basic/Error.h"
#include "readers/SwordEntries.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace {

class SwordEntriesTest : public testing::Test {
protected:
    void SetUp() override {
        for (int number = 1; number <= 9; ++number)
            dictionary.entries.emplace_back(
                "ENTRY" + QByteArray::number(number),
                "text " + QByteArray(200, char('a' + number)) + QByteArray::number(number));
        dictionary.writeTo(folder.path());
    }

    // The keys that can be read; remarks are kept.
    QStringList keys() {
        auto entries = SwordEntries::open(folder.path(), dictionary.name);
        QStringList found;
        while (const std::optional<DictionaryEntry> entry = entries->next())
            found.append(entry->key);
        remarks = entries->remarks();
        return found;
    }

    void cutToHalf(const QString& ending) {
        QFile file(dictionary.file(folder.path(), ending));
        ASSERT_TRUE(file.resize(file.size() / 2));
    }

    void changeBytes(const QString& ending, unsigned seed) {
        QFile file(dictionary.file(folder.path(), ending));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        QByteArray content = file.readAll();
        std::mt19937 random(seed);
        for (int change = 0; change < 6; ++change)
            content[qsizetype(random() % content.size())] = char(random());
        file.seek(0);
        file.write(content);
    }

    QTemporaryDir folder;
    SmallDictionary dictionary;
    QStringList remarks;
};

} // namespace

TEST_F(SwordEntriesTest, yieldsEachEntryInOrder) {
    auto entries = SwordEntries::open(folder.path(), dictionary.name);
    for (const auto& [key, text] : dictionary.entries) {
        const std::optional<DictionaryEntry> entry = entries->next();
        ASSERT_TRUE(entry);
        EXPECT_EQ(entry->key, QString::fromLatin1(key));
        EXPECT_EQ(entry->text, QString::fromLatin1(text));
    }
    EXPECT_FALSE(entries->next());
    EXPECT_TRUE(entries->remarks().isEmpty());
}

TEST_F(SwordEntriesTest, tellsWhereTheEntriesAreFrom) {
    const SourceInfo info = SwordEntries::open(folder.path(), dictionary.name)->info();
    EXPECT_EQ(info.title, u"A small dictionary"_s);
    EXPECT_EQ(info.source, u"SWORD module Nave 3.1"_s);
    EXPECT_EQ(info.licence, u"Public Domain"_s);
}

TEST_F(SwordEntriesTest, aFolderWithoutTheModuleGivesNothing) {
    EXPECT_EQ(SwordEntries::open(folder.path(), u"Other"_s), nullptr);
    EXPECT_EQ(SwordEntries::open(folder.filePath(u"none"_s), dictionary.name), nullptr);
}

TEST_F(SwordEntriesTest, refusesAnotherDriver) {
    dictionary.driver = "RawLD";
    dictionary.writeTo(folder.path());
    EXPECT_THROW(SwordEntries::open(folder.path(), dictionary.name), Error);
}

TEST_F(SwordEntriesTest, aMissingOrEmptyFileIsAnError) {
    for (const QString& ending : {u"idx"_s, u"dat"_s, u"zdx"_s, u"zdt"_s}) {
        dictionary.writeTo(folder.path());
        ASSERT_TRUE(QFile::resize(dictionary.file(folder.path(), ending), 0));
        EXPECT_THROW(SwordEntries::open(folder.path(), dictionary.name), Error)
            << qPrintable(ending);
    }
}

TEST_F(SwordEntriesTest, aFileThatIsCutOffCostsEntriesAndIsTold) {
    for (const QString& ending : {u"dat"_s, u"zdx"_s, u"zdt"_s}) {
        dictionary.writeTo(folder.path());
        cutToHalf(ending);
        const QStringList read = keys();
        EXPECT_FALSE(read.isEmpty()) << qPrintable(ending);
        EXPECT_LT(read.size(), 9) << qPrintable(ending);
        ASSERT_EQ(remarks.size(), 1) << qPrintable(ending);
        EXPECT_TRUE(remarks[0].startsWith(
            QString::number(9 - read.size()) + u" entries of SWORD module Nave 3.1 are damaged"_s))
            << qPrintable(remarks[0]);
    }
}

TEST_F(SwordEntriesTest, aDictionaryWithoutAReadableEntryIsAnError) {
    QFile file(dictionary.file(folder.path(), u"zdt"_s));
    ASSERT_TRUE(file.resize(10));
    EXPECT_THROW(keys(), Error);
}

TEST_F(SwordEntriesTest, changedBytesNeverYieldAnotherText) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        dictionary.writeTo(folder.path());
        changeBytes(u"zdt"_s, seed);
        auto entries = SwordEntries::open(folder.path(), dictionary.name);
        try {
            while (const std::optional<DictionaryEntry> entry = entries->next())
                EXPECT_TRUE(entry->text.startsWith(u"text "_s) && entry->text.size() == 206);
        } catch (const Error&) {
        }
    }
}

TEST_F(SwordEntriesTest, changedPlacesAreSurvived) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        dictionary.writeTo(folder.path());
        for (const QString& ending : {u"idx"_s, u"dat"_s, u"zdx"_s})
            changeBytes(ending, seed);
        try {
            EXPECT_LE(keys().size(), 9);
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), Error::NotADatabase);
        }
    }
}
