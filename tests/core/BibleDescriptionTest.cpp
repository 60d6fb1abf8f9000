// The window that describes the translations.
#include "core/frmBibleDescription.h"

#include "core/BibleDescriptions.h"
#include "output/frmEmail.h"
#include "reader/frmMain.h"
#include "support/ProgramFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class BibleDescription : public ProgramFixture {
protected:
    static frmBibleDescription& window() { return form<frmBibleDescription>(); }
};

} // namespace

TEST_F(BibleDescription, hasOneParagraphForEachVersionInOrder) {
    const QStringList versions = {
        u"King James"_s,
        u"Young's Literal"_s,
        u"American Standard"_s,
        u"Darby"_s,
        u"Latin Vulgate"_s,
        u"Spanish"_s,
        u"French"_s,
        u"German"_s,
        u"Dutch, modern text"_s,
        u"Dutch, early text"_s};
    const QStringList blocks = bibleDescriptions().split(u"\n\n"_s);
    ASSERT_EQ(blocks.size(), versions.size());
    for (qsizetype block = 0; block < blocks.size(); ++block) {
        const QStringList lines = blocks[block].split(u'\n');
        ASSERT_EQ(lines.size(), 2) << block;
        EXPECT_TRUE(lines[0].startsWith(versions[block])) << lines[0].toStdString();
        EXPECT_GT(lines[1].size(), 200) << lines[0].toStdString();
    }
}

TEST_F(BibleDescription, showsTheTextToReadAndNotToChange) {
    window().Show();
    EXPECT_EQ(window().Caption(), u"Bible Descriptions"_s);
    QTest::keyClicks(&window().txtHistory, u"typed"_s);
    EXPECT_EQ(window().txtHistory.Text(), bibleDescriptions());
}

TEST_F(BibleDescription, okAndEscapeCloseItAndLeadToTheFindBox) {
    startProgram();
    window().Show();
    QTest::mouseClick(&window().cmdOk, Qt::LeftButton);
    EXPECT_FALSE(isLoaded<frmBibleDescription>());
    EXPECT_EQ(form<frmMain>().focusWidget(), &form<frmMain>().txtFind);
    window().Show();
    QTest::keyClick(&window().txtHistory, Qt::Key_Escape);
    EXPECT_FALSE(isLoaded<frmBibleDescription>());
}

TEST_F(BibleDescription, sendsTheTextByMailAfterItHasClosed) {
    window().Show();
    desktop.expectWindow([](QWidget& mail) {
        EXPECT_FALSE(isLoaded<frmBibleDescription>());
        EXPECT_EQ(dynamic_cast<frmEmail&>(mail).EmailBody, bibleDescriptions());
        QTest::keyClick(&mail, Qt::Key_Escape);
    });
    QTest::mouseClick(&window().cmdEmail, Qt::LeftButton);
}
