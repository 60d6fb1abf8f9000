// The real program off screen, as a machine without a display runs it.
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Executable : public testing::Test {
protected:
    Executable() {
        QFile::copy(
            qEnvironmentVariable("LUMENVIA_BIBLES") + u"/KJV.mdb"_s, m_home.filePath(u"KJV.mdb"_s));
        m_environment = QProcessEnvironment::systemEnvironment();
        m_environment.insert(u"LUMENVIA_HOME"_s, m_home.path());
        m_environment.insert(u"XDG_CONFIG_HOME"_s, m_home.filePath(u"config"_s));
    }

    // Runs the program to its end; its exit code, or -1.
    int run() {
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QStringLiteral(LUMENVIA_PROGRAM), QStringList());
        return process.waitForFinished(60'000) ? process.exitCode() : -1;
    }

    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
};

} // namespace

TEST_F(Executable, writesAPictureOfItsFirstPageAndEnds) {
    const QString picture = m_home.filePath(u"picture.png"_s);
    m_environment.insert(u"LUMENVIA_PICTURE"_s, picture);
    EXPECT_EQ(run(), 0);
    const QImage image(picture);
    EXPECT_GE(image.width(), 720);
    EXPECT_GE(image.height(), 480);
}

TEST_F(Executable, saysThatAPictureCannotBeWritten) {
    m_environment.insert(u"LUMENVIA_PICTURE"_s, m_home.filePath(u"missing/picture.png"_s));
    EXPECT_EQ(run(), 1);
}

TEST_F(Executable, waitsForNobodyOverAMessage) {
    QFile bible(m_home.filePath(u"KJV.mdb"_s));
    ASSERT_TRUE(bible.open(QIODevice::WriteOnly)); // empty
    bible.close();
    m_environment.insert(u"LUMENVIA_PICTURE"_s, m_home.filePath(u"picture.png"_s));
    EXPECT_EQ(run(), 0);
    ASSERT_TRUE(bible.remove());
    EXPECT_EQ(run(), 1);
}

TEST_F(Executable, leavesItsSettingsUnderTheirKeys) {
    m_environment.insert(u"LUMENVIA_MEASURE"_s, u"1"_s);
    EXPECT_EQ(run(), 0);
    QFile settings(m_home.filePath(u"config/lumenvia/Lumenvia Professional.ini"_s));
    ASSERT_TRUE(settings.open(QIODevice::ReadOnly));
    const QByteArray text = settings.readAll();
    for (const char* line :
         {"[Lumenvia]", "VersesPerPage=40", "PrintRightmargin=.6", "showhide=1", "BootupBible=1",
          "BookmarkTEXT70="})
        EXPECT_TRUE(text.contains(line)) << line;
}
