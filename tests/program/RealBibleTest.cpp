// The program in this process on the real King James Bible.
#include "core/GlobalCode.h"
#include "core/NewSetup.h"
#include "reader/PageComposer.h"
#include "reader/frmMain.h"
#include "support/ProgramFixture.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class RealBible : public ProgramFixture {
protected:
    void SetUp() override {
        const QString bibles = qEnvironmentVariable("LUMENVIA_BIBLES");
        ASSERT_TRUE(QFile::copy(bibles + u"/KJV.mdb"_s, programFile(u"KJV.mdb"_s)));
        startProgram();
    }

    // The plain lines of a chapter, read from the file by a cursor of its own.
    static QStringList chapterLines(int book, int chapter, const QString& name) {
        Recordset verses = dbBible.OpenRecordset(
            u"SELECT * FROM tblMain WHERE book = %1 AND chapter = %2"_s.arg(book).arg(chapter),
            dbOpenDynaset);
        QStringList lines;
        for (; !verses.Eof(); verses.MoveNext()) {
            const QString text = RedLetterText(verses.Fields(4).Value().toString(), false);
            lines.append(u"%1 %2:%3 %4"_s.arg(name)
                             .arg(chapter)
                             .arg(verses.Fields(3).Value().toInt())
                             .arg(text));
        }
        return lines;
    }

    static QStringList pageLines() {
        QStringList lines = form<frmMain>().txtMain.Text().split(u'\n');
        for (QString& line : lines)
            line = line.simplified();
        return lines;
    }
};

} // namespace

TEST_F(RealBible, opensOnMatthewOne) {
    EXPECT_EQ(form<frmMain>().Caption(), u"Lumenvia Professional King James [Matthew 1:1] "_s);
    EXPECT_EQ(pageLines(), chapterLines(40, 1, u"Matthew"_s));
    EXPECT_EQ(
        pageLines().constFirst(),
        u"Matthew 1:1 The book of the generation of Jesus Christ, the son of David, the son of "
        u"Abraham."_s);
    EXPECT_EQ(pageLines().size(), 25);
}

TEST_F(RealBible, showsThePsalmOfAHundredAndSeventySixVerses) {
    rsBible.Seek(u"="_s, 19, 119, 1);
    form<frmMain>().UpDateBibleText(true);
    EXPECT_EQ(pageLines(), chapterLines(19, 119, u"Psalms"_s));
    EXPECT_EQ(pageLines().size(), 176);
    EXPECT_TRUE(pageLines().constLast().startsWith(u"Psalms 119:176 I have gone astray"_s));
    EXPECT_EQ(position(), u"19:119:136"_s);
}

TEST_F(RealBible, reddensTheWordsOfChrist) {
    rsBible.Seek(u"="_s, 43, 11, 39);
    const QString page = composePage(true).rtf;
    EXPECT_TRUE(page.contains(u"\\cf2"_s));
    RichTextBox& text = form<frmMain>().txtMain;
    rsBible.Seek(u"="_s, 43, 11, 39);
    form<frmMain>().UpDateBibleText(true);
    text.setSelStart(static_cast<int>(text.Text().indexOf(u"Take ye away"_s)));
    text.setSelLength(4);
    EXPECT_EQ(text.SelColor(), QColor(255, 0, 0));
}

TEST_F(RealBible, holdsEveryVerse) {
    EXPECT_EQ(rsBible.RecordCount(), 31102);
}
