#include "core/GlobalCode.h"
#include "desktop/HostPath.h"
#include "support/ProgramFixture.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class FindDataFileTest : public ProgramFixture {
protected:
    // Makes a file at a place as the program spells it.
    static void make(const QString& path) {
        const QString host = hostPath(path);
        QDir().mkpath(QFileInfo(host).path());
        QFile file(host);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << host.toStdString();
        file.write("x");
    }

    static void remove(const QString& path) { ASSERT_TRUE(QFile::remove(hostPath(path))); }
};

} // namespace

TEST_F(FindDataFileTest, nothingFoundIsBad) {
    EXPECT_EQ(FindDataFile(u"kjv.mdb"_s), u"BAD"_s);
    EXPECT_EQ(FindDataFile({}), u"BAD"_s);
}

TEST_F(FindDataFileTest, aFullPathOfAnExistingFileIsReturnedAsItStands) {
    const QString path = programFile(u"kjv.mdb"_s);
    make(path);
    EXPECT_EQ(FindDataFile(path), path);
}

TEST_F(FindDataFileTest, aBareNameThatIsOnlyInTheLastPlaceIsFoundThere) {
    make(u"d:\\bible\\kjv.mdb"_s);
    EXPECT_EQ(FindDataFile(u"kjv.mdb"_s), u"d:\\bible\\kjv.mdb"_s);
}

TEST_F(FindDataFileTest, thePlacesAreSearchedInTheirOrder) {
    QDir::setCurrent(QDir(programFile({})).filePath(u".."_s));
    // The plain "c:\bibles\" further down is left out: on this host it is the folder of the place
    // with the doubled backslash, which is found first. The current directory has its own test.
    const QStringList places = {
        programFolder() + u"\\kjv.mdb"_s,
        u"c:\\bibles\\\\kjv.mdb"_s,
        u"c:\\lumenvia\\kjv.mdb"_s,
        u"c:\\tessera\\kjv.mdb"_s,
        u"c:\\quillpage\\kjv.mdb"_s,
        u"c:\\oakverse\\kjv.mdb"_s,
        u"c:\\Program Files\\Tessera Software\\Study Almanac\\Bible Versions\\kjv.mdb"_s,
        u"c:\\Program Files\\Tessera Software\\Study Almanac\\kjv.mdb"_s,
        u"d:\\bibles\\kjv.mdb"_s,
        u"c:\\bible\\kjv.mdb"_s,
        u"d:\\bible\\kjv.mdb"_s,
    };
    for (const QString& place : places)
        make(place);
    for (const QString& place : places) {
        EXPECT_EQ(FindDataFile(u"kjv.mdb"_s).toStdString(), place.toStdString());
        remove(place);
    }
    EXPECT_EQ(FindDataFile(u"kjv.mdb"_s), u"BAD"_s);
}

TEST_F(FindDataFileTest, theCurrentDirectoryComesAfterTheProgramsFolder) {
    QDir().mkpath(programFile(u"elsewhere"_s));
    QDir::setCurrent(programFile(u"elsewhere"_s));
    const QString here = QDir::currentPath() + u"\\names.mdb"_s;
    make(here);
    // The bare name is tried first, and the system looks for it in the current directory too.
    EXPECT_EQ(FindDataFile(u"names.mdb"_s), u"names.mdb"_s);
    EXPECT_EQ(FindDataFile(u".\\..\\elsewhere\\names.mdb"_s), u".\\..\\elsewhere\\names.mdb"_s);
    // A name that is a full path by itself, and no file, is there only behind the directory's name.
    EXPECT_EQ(FindDataFile(u"\\names.mdb"_s), QDir::currentPath() + u"\\\\names.mdb"_s);
    make(programFolder() + u"\\names.mdb"_s);
    EXPECT_EQ(FindDataFile(u"\\names.mdb"_s), programFolder() + u"\\\\names.mdb"_s);
}

TEST_F(FindDataFileTest, namesAreFoundInAnyCase) {
    QDir::setCurrent(QDir::rootPath());
    make(programFolder() + u"\\Kjv.MDB"_s);
    EXPECT_EQ(FindDataFile(u"KJV.mdb"_s), programFolder() + u"\\KJV.mdb"_s);
}

TEST_F(FindDataFileTest, aFoundFileLosesItsReadOnlyMark) {
    const QString path = programFile(u"kjv.mdb"_s);
    make(path);
    QFile::setPermissions(path, QFileDevice::ReadOwner);
    EXPECT_EQ(FindDataFile(path), path);
    EXPECT_TRUE(QFile::permissions(path).testFlag(QFileDevice::WriteOwner));
}
