#include "app/ProgramFolder.h"

#include "support/ProgramFixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

// The works that were installed with the program lie beside the test, as they do beside the
// program.
class ProgramFolder : public ProgramFixture {
protected:
    ProgramFolder() { EXPECT_TRUE(m_works.mkpath(u"."_s)); }
    ~ProgramFolder() override { m_works.removeRecursively(); }

    static void write(const QString& path, const QByteArray& content) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        file.write(content);
    }

    // An installed work, which nobody can write.
    void install(const QString& name, const QByteArray& content) const {
        write(m_works.filePath(name), content);
        constexpr QFileDevice::Permissions Readable =
            QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther;
        ASSERT_TRUE(QFile::setPermissions(m_works.filePath(name), Readable));
    }

    QByteArray content(const QString& name) const {
        QFile file(programFile(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QStringList files() const { return QDir(programFile({})).entryList(QDir::Files, QDir::Name); }

    QDir m_works{QCoreApplication::applicationDirPath() + u"/../share/lumenvia"_s};
};

} // namespace

TEST_F(ProgramFolder, getsTheWorksThatItLacks) {
    install(u"KJV.mdb"_s, "a Bible");
    install(u"bible.hlp"_s, "help");
    install(u"TIPOFDAY.TXT"_s, "a tip");
    install(u"README"_s, "no work");
    prepareProgramFolder();
    EXPECT_EQ(files(), (QStringList{u"KJV.mdb"_s, u"TIPOFDAY.TXT"_s, u"bible.hlp"_s}));
    EXPECT_EQ(content(u"KJV.mdb"_s), "a Bible");
    EXPECT_EQ(content(u"bible.hlp"_s), "help");
    EXPECT_EQ(content(u"TIPOFDAY.TXT"_s), "a tip");
}

TEST_F(ProgramFolder, aCopyCanBeWritten) {
    install(u"KJV.mdb"_s, "a Bible");
    bool canRead = false;
    // An administrator's copies can be written anyway.
    asPlainUser(Folder::Writable, [&] {
        canRead = QFile(m_works.filePath(u"KJV.mdb"_s)).open(QIODevice::ReadOnly);
        prepareProgramFolder();
    });
    if (!canRead)
        GTEST_SKIP() << "this folder is closed to other users";
    EXPECT_EQ(content(u"KJV.mdb"_s), "a Bible");
    EXPECT_TRUE(QFile::permissions(programFile(u"KJV.mdb"_s)).testFlag(QFileDevice::WriteOwner));
}

TEST_F(ProgramFolder, keepsWhatItHas) {
    install(u"KJV.mdb"_s, "a newer Bible");
    install(u"YLT.mdb"_s, "another");
    write(programFile(u"kjv.MDB"_s), "with notes"); // the same name, whatever its case
    prepareProgramFolder();
    EXPECT_EQ(files(), (QStringList{u"YLT.mdb"_s, u"kjv.MDB"_s}));
    EXPECT_EQ(content(u"kjv.MDB"_s), "with notes");
    EXPECT_EQ(content(u"YLT.mdb"_s), "another");
}

TEST_F(ProgramFolder, aCopyThatWasCutShortIsMadeAnew) {
    install(u"KJV.mdb"_s, "a Bible");
    write(programFile(u"KJV.mdb.part"_s), "a B");
    prepareProgramFolder();
    EXPECT_EQ(files(), QStringList{u"KJV.mdb"_s});
    EXPECT_EQ(content(u"KJV.mdb"_s), "a Bible");
}

TEST_F(ProgramFolder, isMadeWhereItIsMissing) {
    install(u"KJV.mdb"_s, "a Bible");
    qputenv("LUMENVIA_HOME", programFile(u"deep/below"_s).toLocal8Bit());
    prepareProgramFolder();
    EXPECT_EQ(content(u"deep/below/KJV.mdb"_s), "a Bible");
}

TEST_F(ProgramFolder, withoutInstalledWorksStaysEmpty) {
    ASSERT_TRUE(m_works.removeRecursively());
    prepareProgramFolder();
    EXPECT_EQ(files(), QStringList());
}

TEST_F(ProgramFolder, thatCannotBeWrittenIsLeftInSilence) {
    install(u"KJV.mdb"_s, "a Bible");
    asPlainUser(Folder::ReadOnly, [] { prepareProgramFolder(); });
#ifdef Q_OS_UNIX
    EXPECT_EQ(files(), QStringList());
#endif
}

TEST_F(ProgramFolder, thatCannotBeMadeIsLeftInSilence) {
    install(u"KJV.mdb"_s, "a Bible");
    write(programFile(u"file"_s), "in the way");
    qputenv("LUMENVIA_HOME", programFile(u"file/below"_s).toLocal8Bit());
    prepareProgramFolder();
    EXPECT_EQ(files(), QStringList{u"file"_s});
    EXPECT_EQ(content(u"file"_s), "in the way");
}
