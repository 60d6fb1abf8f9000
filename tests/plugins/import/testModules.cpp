// A user's own SWORD modules.
#include "plugins/SmallModule.h"
#include "plugins/import/CompressedModule.h"
#include "plugins/import/ImportFixture.h"

#include "basic/Error.h"
#include "readers/ModuleFolder.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class ModuleTest : public ImportTest {
protected:
    void writeModule(const QString& name, const QByteArray& word) {
        SmallModule module;
        module.name = name;
        module.entries = {{"Gen 1:1", word}, {"Rev 22:21", "Amen"}};
        module.writeTo(source.path());
    }

    QString description(const QString& name) const {
        return source.filePath(u"mods.d/%1.conf"_s.arg(name));
    }

    void changeDescription(const QString& name, const QByteArray& from, const QByteArray& to) {
        QFile file(description(name));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        QByteArray content = file.readAll();
        ASSERT_TRUE(content.contains(from));
        file.resize(0);
        file.seek(0);
        file.write(content.replace(from, to));
    }

    void expectError(const QString& text) {
        EXPECT_TRUE(errors.contains(text)) << qPrintable(errors);
        expectNothingMade();
    }
};

} // namespace

TEST_F(ModuleTest, isFoundByItsFolderOrItsDescription) {
    writeModule(u"one"_s, "In");
    writeModule(u"two"_s, "Im");
    ASSERT_TRUE(import(source.filePath(u"modules/two"_s))) << qPrintable(errors);
    EXPECT_EQ(stored().value(0), u"Genesis 1:1 Im"_s);
    ASSERT_TRUE(import(description(u"one"_s))) << qPrintable(errors);
    EXPECT_EQ(stored().value(0), u"Genesis 1:1 In"_s);
    EXPECT_EQ(rowsOf(path, u"tblInfo"_s).value(0).value(1), u"SWORD module one 7.1"_s);
}

TEST_F(ModuleTest, severalInAFolderAreNamed) {
    writeModule(u"one"_s, "In");
    writeModule(u"two"_s, "Im");
    EXPECT_FALSE(import(source.path()));
    expectError(u"holds several texts. Name the description of the one that is meant: one (%1), "
                u"two (%2)"_s.arg(description(u"one"_s), description(u"two"_s)));
}

TEST_F(ModuleTest, aDriverWithoutItsFilesIsRefused) {
    writeModule(u"one"_s, "In");
    changeDescription(u"one"_s, "ModDrv=RawText", "ModDrv=zText");
    EXPECT_FALSE(import(source.path()));
    expectError(u"has no files of the driver zText that "_s);
}

TEST_F(ModuleTest, aDriverOfAnotherWidthIsRefused) {
    writeModule(u"one"_s, "In");
    changeDescription(u"one"_s, "ModDrv=RawText", "ModDrv=RawText4");
    EXPECT_FALSE(import(source.path()));
    expectError(u"are damaged, or are not of the driver RawText4 that "_s);
}

TEST_F(ModuleTest, anIndexThatLeadsOutOfTheTextIsRefused) {
    writeModule(u"one"_s, "In");
    ASSERT_TRUE(QFile::resize(source.filePath(u"modules/one/nt"_s), 1));
    EXPECT_FALSE(import(source.path()));
    expectError(u"The files of the module one are damaged"_s);
}

TEST_F(ModuleTest, anIndexThatIsCutOffIsNamed) {
    writeModule(u"one"_s, "In");
    QFile index(source.filePath(u"modules/one/nt.vss"_s));
    const qint64 entries = index.size() / 6;
    ASSERT_TRUE(index.resize(index.size() - 6));
    EXPECT_FALSE(import(source.path()));
    expectError(u"The file %1 is cut off: it has %2 entries; the verses of the module need %3."_s
                    .arg(index.fileName())
                    .arg(entries - 1)
                    .arg(entries));
}

TEST_F(ModuleTest, anEmptyIndexBesideItsTextIsCutOff) {
    writeModule(u"one"_s, "In");
    ASSERT_TRUE(QFile::resize(source.filePath(u"modules/one/ot.vss"_s), 0));
    EXPECT_FALSE(import(source.path()));
    expectError(u"ot.vss is cut off: it has 0 entries"_s);
}

TEST_F(ModuleTest, aModuleOfOneTestamentIsWhole) {
    writeModule(u"one"_s, "In");
    ASSERT_TRUE(QFile::remove(source.filePath(u"modules/one/ot.vss"_s)));
    ASSERT_TRUE(QFile::remove(source.filePath(u"modules/one/ot"_s)));
    ASSERT_TRUE(import(source.path())) << qPrintable(errors);
    EXPECT_EQ(stored(), QStringList(u"Revelation 22:21 Amen"_s));
}

TEST_F(ModuleTest, emptyFilesOfATestamentAreNone) {
    writeModule(u"one"_s, "In");
    ASSERT_TRUE(QFile::resize(source.filePath(u"modules/one/ot.vss"_s), 0));
    ASSERT_TRUE(QFile::resize(source.filePath(u"modules/one/ot"_s), 0));
    ASSERT_TRUE(import(source.path())) << qPrintable(errors);
    EXPECT_EQ(stored().size(), 1);
}

TEST_F(ModuleTest, aBlockThatDoesNotUnpackIsRefused) {
    SmallModule module;
    module.entries = {{"Gen 1:1", "In the beginning God created the heaven and the earth."}};
    writeCompressed(module, source.path());
    ASSERT_TRUE(import(source.path())) << qPrintable(errors);
    ASSERT_TRUE(QFile::remove(path));
    QFile text(source.filePath(u"modules/%1/ot.bzz"_s.arg(module.name)));
    ASSERT_TRUE(text.open(QIODevice::ReadWrite));
    ASSERT_TRUE(text.seek(20) && text.write("\0\0\0\0", 4) == 4);
    text.close();
    EXPECT_FALSE(import(source.path()));
    expectError(u"are damaged, or are not of the driver zText that "_s);
}

TEST_F(ModuleTest, aLockedModuleIsRefused) {
    writeModule(u"one"_s, "In");
    changeDescription(u"one"_s, "Version=7.1", "Version=7.1\nCipherKey=");
    EXPECT_FALSE(import(source.path()));
    expectError(u"The module one is locked, and its description has no key."_s);
}

TEST_F(ModuleTest, aModuleThatIsNoTextIsRefused) {
    writeModule(u"one"_s, "In");
    changeDescription(u"one"_s, "ModDrv=RawText", "ModDrv=zLD");
    EXPECT_FALSE(import(source.path()));
    expectError(u"The module one is no text of a Bible: its driver is zLD."_s);
}

TEST_F(ModuleTest, aFolderOfModulesWithoutOneIsRefused) {
    ASSERT_TRUE(QDir(source.path()).mkdir(u"mods.d"_s));
    EXPECT_FALSE(import(source.path()));
    expectError(u"holds no text of a Bible."_s);
}

TEST_F(ModuleTest, readingHasItsTime) {
    writeModule(u"one"_s, "In");
    TimedVerses quick(openModulePath(source.path()), 1h);
    EXPECT_EQ(quick.next()->body, u"In"_s);
    TimedVerses slow(openModulePath(source.path()), -1ms);
    EXPECT_THROW(slow.next(), Error);
}
