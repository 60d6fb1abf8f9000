#include "desktop/FileAttributes.h"

#include "basic/Error.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct SampleFile {
    QTemporaryDir folder;
    QString path = folder.filePath(u"kjv.mdb"_s);

    SampleFile() {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }
};

} // namespace

TEST(FileExists, isTrueForAFileThatCanBeOpened) {
    const SampleFile sample;
    EXPECT_TRUE(FileExists(sample.path));
    EXPECT_TRUE(FileExists(sample.folder.path() + u"\\KJV.MDB"_s));
}

TEST(FileExists, isFalseForNothingAFolderAndAnEmptyName) {
    const SampleFile sample;
    EXPECT_FALSE(FileExists(sample.path + u"x"_s));
    EXPECT_FALSE(FileExists(sample.folder.path()));
    EXPECT_FALSE(FileExists(sample.folder.path() + u"\\"_s));
    EXPECT_FALSE(FileExists({}));
}

TEST(FileAttributes, tellAReadOnlyFileAndMakeItWritable) {
    const SampleFile sample;
    EXPECT_EQ(GetAttr(sample.path), 0);
    QFile::setPermissions(sample.path, QFileDevice::ReadOwner);
    EXPECT_EQ(GetAttr(sample.path), 1);
    clearAttributes(sample.path);
    EXPECT_EQ(GetAttr(sample.path), 0);
}

TEST(FileAttributes, ofAMissingFileAreAnError) {
    const SampleFile sample;
    EXPECT_THROW(GetAttr(sample.path + u"x"_s), Error);
    EXPECT_THROW(clearAttributes(sample.path + u"x"_s), Error);
}
