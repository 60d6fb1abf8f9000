// Translation files that are no good: each gives the prescribed message or silence, and a program
// that goes on.
#include "basic/Error.h"
#include "core/GlobalCode.h"
#include "reader/frmMain.h"
#include "store/DataFile.h"
#include "store/StoreTuning.h"
#include "support/OtherProgram.h"
#include "support/ProgramFixture.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const QString loadError = u"Database Load Error: "_s;
const QString assignError = u"Database Assign Error: "_s;

class DamagedTranslation : public ProgramFixture {
protected:
    QString kjv() const { return programFile(u"KJV.mdb"_s); }

    void write(const QByteArray& content) const {
        QFile file(kjv());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    // A translation whose table is made by `table` and filled with `rows`.
    void addTable(const char* table, const QList<QVariantList>& rows, bool index = true) const {
        DataFileWriter writer(kjv());
        writer.execute(table);
        if (index)
            writer.execute("CREATE INDEX VerseIndex ON tblMain (book, chapter, verse)");
        for (const QVariantList& row : rows)
            writer.insert(u"tblMain"_s, row);
        writer.finish();
    }

    // Starts the program, which shows one message that begins so, and goes on.
    void expectMessage(const QString& beginning, const QString& title, MessageIcon icon) {
        const QString text = errorText();
        ASSERT_FALSE(text.isEmpty());
        desktop.expectMessage({beginning + text, title, icon});
        startProgram();
        EXPECT_EQ(StartingUp, Off);
        EXPECT_TRUE(form<frmMain>().isVisible());
    }

    // What the store says of the file.
    QString errorText() const {
        try {
            Workspace workspace = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
            Recordset rows = workspace.OpenDatabase(kjv()).OpenRecordset(u"tblMain"_s, dbOpenTable);
            rows.Index(u"VerseIndex"_s);
            rows.MoveFirst();
            return {};
        } catch (const Error& error) {
            return error.text();
        }
    }
};

constexpr auto usualTable = "CREATE TABLE tblMain (ID INTEGER PRIMARY KEY, book INTEGER, "
                            "chapter INTEGER, verse INTEGER, body TEXT, note TEXT)";

} // namespace

TEST_F(DamagedTranslation, anEmptyFileIsALoadError) {
    write({});
    expectMessage(loadError, u"Lumenvia"_s, MessageIcon::Stop);
}

TEST_F(DamagedTranslation, aTextIsALoadError) {
    write(QByteArray("In the beginning\n").repeated(1000));
    expectMessage(loadError, u"Lumenvia"_s, MessageIcon::Stop);
}

TEST_F(DamagedTranslation, aFileThatIsCutOffIsALoadError) {
    addTranslation(u"KJV.mdb"_s, sampleVerses());
    QFile file(kjv());
    ASSERT_TRUE(file.resize(file.size() / 2));
    expectMessage(loadError, u"Lumenvia"_s, MessageIcon::Stop);
}

TEST_F(DamagedTranslation, aFileWithoutTheTableIsAnAssignError) {
    DataFileWriter writer(kjv());
    writer.execute("CREATE TABLE other (ID INTEGER PRIMARY KEY)");
    writer.finish();
    expectMessage(assignError, u"Error"_s, MessageIcon::Information);
}

TEST_F(DamagedTranslation, aFileWithoutTheIndexIsAnAssignError) {
    addTable(usualTable, {{1, 1, 1, 1, u"text"_s, {}}}, false);
    expectMessage(assignError, u"Error"_s, MessageIcon::Information);
}

TEST_F(DamagedTranslation, anEmptyTableIsAnAssignError) {
    addTable(usualTable, {});
    expectMessage(assignError, u"Error"_s, MessageIcon::Information);
}

TEST_F(DamagedTranslation, missingColumnsLeaveTheirPartEmpty) {
    addTable(
        "CREATE TABLE tblMain (ID INTEGER PRIMARY KEY, book INTEGER, chapter INTEGER, verse "
        "INTEGER)",
        {{1, 40, 1, 1}, {2, 40, 1, 2}, {3, 40, 2, 1}});
    startProgram();
    EXPECT_EQ(form<frmMain>().txtMain.Text(), u"Matthew 1:1  \nMatthew 1:2  "_s);
    EXPECT_EQ(form<frmMain>().txtNote.Text(), u" "_s);
    EXPECT_EQ(VerseReference(), u"Matthew 1:1"_s);
}

TEST_F(DamagedTranslation, surplusColumnsAreNoHindrance) {
    addTable(
        "CREATE TABLE tblMain (ID INTEGER PRIMARY KEY, book INTEGER, chapter INTEGER, "
        "verse INTEGER, body TEXT, note TEXT, more TEXT)",
        {{1, 40, 1, 1, u"one"_s, u"a note"_s, u"more"_s},
         {2, 40, 1, 2, u"two"_s, {}, u"more"_s},
         {3, 40, 2, 1, u"three"_s, {}, {}}});
    startProgram();
    EXPECT_EQ(form<frmMain>().txtMain.Text(), u"Matthew 1:1 one \nMatthew 1:2 two "_s);
    EXPECT_EQ(form<frmMain>().txtNote.Text(), u"a note"_s);
}

TEST_F(DamagedTranslation, nullsInEveryFieldAreSilence) {
    addTable(
        usualTable, {{1, {}, {}, {}, {}, {}}, {2, {}, {}, {}, {}, {}}, {3, {}, {}, {}, {}, {}}});
    startProgram();
    EXPECT_EQ(form<frmMain>().Caption(), u"Lumenvia Professional King James [] "_s);
    EXPECT_EQ(form<frmMain>().txtMain.Text(), QString()); // one line, and nothing in it
    EXPECT_EQ(form<frmMain>().txtNote.Text(), u" "_s);
}

TEST_F(DamagedTranslation, aRowWithoutAChapterIsAChapterByItself) {
    addTable(
        usualTable,
        {{1, 1, {}, 1, u"one"_s, {}}, {2, 1, {}, 2, u"two"_s, {}}, {3, 1, 2, 1, u"three"_s, {}}});
    startProgram();
    EXPECT_EQ(form<frmMain>().txtMain.Text(), u"Genesis one "_s);
}

TEST_F(DamagedTranslation, aBookOutsideTheBibleIsShownWithoutAName) {
    addTranslation(
        u"KJV.mdb"_s, {{0, 1, 1, u"zero"_s}, {0, 2, 1, u"one"_s}, {99, 1, 1, u"many"_s}});
    startProgram();
    EXPECT_EQ(form<frmMain>().Caption(), u"Lumenvia Professional King James [ 1:1] "_s);
    EXPECT_TRUE(form<frmMain>().txtMain.Text().contains(u"zero"_s));
}

TEST_F(DamagedTranslation, aFileThatAnotherProgramHoldsIsALoadError) {
    addTranslation(u"KJV.mdb"_s, sampleVerses());
    storeTuning().busyTimeout = std::chrono::milliseconds(20);
    OtherProgram holder(QStringLiteral(LUMENVIA_STORE_HELPER), {u"lock"_s, kjv()});
    ASSERT_EQ(holder.readLine(), u"locked"_s);
    expectMessage(loadError, u"Lumenvia"_s, MessageIcon::Stop);
    storeTuning() = {};
}
