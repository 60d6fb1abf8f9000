#include "desktop/HostPath.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <ostream>

using namespace Qt::StringLiterals;

void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}

namespace {

// A program's folder of its own, which is also the current one.
class HostPath : public testing::Test {
protected:
    HostPath()
        : home(QFileInfo(m_folder.path()).canonicalFilePath()) {
        qputenv("LUMENVIA_HOME", home.toUtf8());
        QDir::setCurrent(home);
    }

    ~HostPath() override {
        QDir::setCurrent(m_currentBefore);
        if (m_homeBefore.isNull())
            qunsetenv("LUMENVIA_HOME");
        else
            qputenv("LUMENVIA_HOME", m_homeBefore);
    }

    void make(const QString& name) {
        QDir().mkpath(QFileInfo(home + u'/' + name).path());
        QFile file(home + u'/' + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

private:
    QTemporaryDir m_folder;
    QByteArray m_homeBefore = qgetenv("LUMENVIA_HOME");
    QString m_currentBefore = QDir::currentPath();

protected:
    const QString home;
};

TEST_F(HostPath, theProgramsFolderIsTheOneThatIsSet) {
    EXPECT_EQ(programFolder(), home);
    qputenv("LUMENVIA_HOME", (home + u"/"_s).toUtf8());
    EXPECT_EQ(programFolder(), home) << "without a separator at its end";
    qputenv("LUMENVIA_HOME", "works/mine");
    EXPECT_EQ(programFolder(), home + u"/works/mine"_s);
}

#ifndef Q_OS_WIN

TEST_F(HostPath, theProgramsFolderIsElseTheUsersDataFolder) {
    qputenv("LUMENVIA_HOME", "");
    EXPECT_TRUE(programFolder().endsWith(u"/lumenvia"_s));
    EXPECT_TRUE(QDir::isAbsolutePath(programFolder()));
}

TEST_F(HostPath, theRootIsAPathToo) {
    EXPECT_EQ(hostPath(u"/"_s), u"/"_s);
    EXPECT_EQ(hostPath(u"\\"_s), u"/"_s);
}

TEST_F(HostPath, drivesAreFoldersBelowTheProgramsFolder) {
    make(u"drives/c/bibles/kjv.mdb"_s);
    EXPECT_EQ(hostPath(u"c:\\bibles\\kjv.mdb"_s), home + u"/drives/c/bibles/kjv.mdb"_s);
    EXPECT_EQ(hostPath(u"C:\\Bibles\\KJV.MDB"_s), home + u"/drives/c/bibles/kjv.mdb"_s);
    EXPECT_EQ(hostPath(u"c:/bibles/kjv.mdb"_s), home + u"/drives/c/bibles/kjv.mdb"_s);
    EXPECT_EQ(hostPath(u"c:\\bibles\\\\kjv.mdb"_s), home + u"/drives/c/bibles/kjv.mdb"_s);
    EXPECT_EQ(hostPath(u"c:bibles\\kjv.mdb"_s), home + u"/drives/c/bibles/kjv.mdb"_s);
    EXPECT_EQ(hostPath(u"c:\\"_s), home + u"/drives/c"_s);
    EXPECT_EQ(hostPath(u"D:\\x"_s), home + u"/drives/d/x"_s) << "also one that does not exist";
}

TEST_F(HostPath, aDriveMayBeALink) {
    make(u"elsewhere/Bible/kjv.mdb"_s);
    QDir().mkpath(home + u"/drives"_s);
    QFile::link(home + u"/elsewhere"_s, home + u"/drives/d"_s);
    EXPECT_EQ(hostPath(u"d:\\bible\\KJV.mdb"_s), home + u"/drives/d/Bible/kjv.mdb"_s);
    EXPECT_TRUE(QFile::exists(hostPath(u"d:\\bible\\KJV.mdb"_s)));
}

TEST_F(HostPath, bothSeparatorsSeparate) {
    make(u"a/b/c.txt"_s);
    const QString file = home + u"/a/b/c.txt"_s;
    EXPECT_EQ(hostPath(home + u"\\a\\b\\c.txt"_s), file);
    EXPECT_EQ(hostPath(home + u"\\a/b\\c.txt"_s), file);
    EXPECT_EQ(hostPath(QString(file).replace(u'/', u'\\')), file);
    EXPECT_EQ(hostPath(u"a\\b\\c.txt"_s), file) << "from the current folder";
    EXPECT_EQ(hostPath(home + u"\\a\\b\\..\\b\\.\\c.txt"_s), home + u"/a/b/../b/./c.txt"_s);
}

TEST_F(HostPath, aMissingNameIsKeptAsItWasGiven) {
    make(u"Works/kjv.mdb"_s);
    EXPECT_EQ(hostPath(home + u"\\works\\New.mdb"_s), home + u"/Works/New.mdb"_s);
    EXPECT_EQ(hostPath(home + u"\\None\\Works\\X"_s), home + u"/None/Works/X"_s);
    EXPECT_EQ(hostPath(u"New.mdb"_s), home + u"/New.mdb"_s);
    EXPECT_EQ(hostPath({}), QString());
}

#endif

#ifdef Q_OS_LINUX // elsewhere the file system itself does not regard case

TEST_F(HostPath, namesAreFoundWithoutRegardToCase) {
    make(u"Works/Größe/KJV.mdb"_s);
    EXPECT_EQ(hostPath(home + u"\\works\\GRÖßE\\kjv.MDB"_s), home + u"/Works/Größe/KJV.mdb"_s);
}

TEST_F(HostPath, anExactNameComesBeforeAnother) {
    make(u"KJV.mdb"_s);
    make(u"kjv.mdb"_s);
    EXPECT_EQ(hostPath(home + u"\\kjv.mdb"_s), home + u"/kjv.mdb"_s);
    EXPECT_EQ(hostPath(home + u"\\KJV.mdb"_s), home + u"/KJV.mdb"_s);
    EXPECT_EQ(hostPath(home + u"\\Kjv.mdb"_s), home + u"/KJV.mdb"_s) << "else the first by name";
}

TEST_F(HostPath, hiddenNamesAndFoldersAreFoundToo) {
    make(u".Hidden/file"_s);
    EXPECT_EQ(hostPath(home + u"\\.hidden\\FILE"_s), home + u"/.Hidden/file"_s);
    EXPECT_EQ(hostPath(home + u"\\.hidden\\"_s), home + u"/.Hidden"_s);
}

#endif

} // namespace
