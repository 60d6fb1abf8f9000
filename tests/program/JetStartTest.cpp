// The real program, started on a Jet database that lies where it looks for a translation.
#include "plugins/jet/JetTest.h"

#include <QProcess>

namespace {

class JetStart : public JetTest {
protected:
    // Starts the program on the first page, off screen; what it says on the way.
    QString start() {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LUMENVIA_HOME"_s, QFileInfo(path()).path());
        environment.insert(u"LUMENVIA_PICTURE"_s, path(u"picture.png"_s));
        environment.insert(u"XDG_CONFIG_HOME"_s, path(u"config"_s));
        QProcess program;
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(QStringLiteral(LUMENVIA_PROGRAM), QStringList());
        EXPECT_TRUE(program.waitForFinished(60'000));
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(program.exitCode(), 0);
        return QString::fromLocal8Bit(program.readAll());
    }

    QString found() const { return path(u"KJV.mdb"_s); }
};

} // namespace

TEST_F(JetStart, convertsItOnceAndKeepsTheOriginalAndItsNotes) {
    write(verseFile(), u"KJV.mdb"_s);
    EXPECT_FALSE(start().contains(u"Error"_s));
    EXPECT_EQ(read(u"KJV.mdb.jet"_s), verseFile());
    const QList<QVariantList> rows = rowsOf(found(), u"tblMain"_s);
    ASSERT_EQ(rows.size(), verseTable().rows.size());
    EXPECT_EQ(rows[1][5], verseTable().rows[1].values[5]);
    const QByteArray converted = read(u"KJV.mdb"_s);
    start();
    EXPECT_EQ(read(u"KJV.mdb"_s), converted);
    EXPECT_TRUE(read(u"KJV.mdb.2.jet"_s).isEmpty());
}

TEST_F(JetStart, saysWhatIsWrongWithADamagedOneAndLeavesIt) {
    const QByteArray damaged = verseFile().left(9000);
    write(damaged, u"KJV.mdb"_s);
    const QString said = start();
    EXPECT_TRUE(said.contains(u"Database Load Error: The file \"%1\" is a Jet database and was not "
                              u"converted: "_s.arg(found())))
        << qPrintable(said);
    EXPECT_EQ(read(u"KJV.mdb"_s), damaged);
}
