// The searches by their shortcuts, each a real key press, on the real King James Bible.
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "reader/frmMain.h"
#include "search/frmHolyTextFind.h"
#include "search/frmIndex.h"
#include "search/frmNoteSearch.h"
#include "search/frmQuery.h"
#include "search/frmSimpleFind.h"
#include "support/ProgramFixture.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class SearchKeys : public ProgramFixture {
protected:
    void SetUp() override {
        const QString bibles = qEnvironmentVariable("LUMENVIA_BIBLES");
        ASSERT_TRUE(QFile::copy(bibles + u"/KJV.mdb"_s, programFile(u"KJV.mdb"_s)));
        startProgram();
        main().txtMain.SetFocus();
    }

    static frmMain& main() { return form<frmMain>(); }

    // In the main window, whatever has the focus there.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        main().activateWindow();
        QCoreApplication::processEvents();
        QTest::keyClick(main().focusWidget(), key, modifiers);
    }

    // The user types and presses Enter; the action goes on from there.
    template <class Window>
    void type(const QString& text, const std::function<void(Window&)>& user) {
        desktop.expectWindow([text, user](QWidget& opened) {
            opened.activateWindow();
            QCoreApplication::processEvents();
            auto* window = dynamic_cast<Window*>(&opened);
            ASSERT_NE(window, nullptr);
            QTest::keyClicks(opened.focusWidget(), text);
            QTest::keyClick(opened.focusWidget(), Qt::Key_Return);
            user(*window);
        });
    }

    void query(const QString& text) {
        type<frmQuery>(text, [](frmQuery&) {});
        press(Qt::Key_S, Qt::ControlModifier);
    }

    static void endQuery() { press(Qt::Key_J, Qt::ControlModifier); }

    static QString listed() {
        return main().cboBook.Text() + u' ' + main().cboChapter.Text() + u':'
               + main().cboVerse.Text();
    }

    static QString pageTop() { return main().txtMain.Text().section(u' ', 0, 1); }

    static void expectTitle(const QString& reference) {
        EXPECT_TRUE(main().Caption().contains(u'[' + reference + u']'))
            << main().Caption().toStdString();
    }
};

} // namespace

TEST_F(SearchKeys, f6SearchesSimply) {
    type<frmSimpleFind>(u"Melchizedek"_s, [](frmSimpleFind& window) {
        EXPECT_EQ(listed(), u"Genesis 14:18"_s);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    press(Qt::Key_F6);
    expectTitle(u"Genesis 14:18"_s);
    EXPECT_EQ(pageTop(), u"Genesis 14:18"_s);
}

TEST_F(SearchKeys, f7SearchesInTheAdvancedWay) {
    type<frmHolyTextFind>(u"Melchizedek"_s, [](frmHolyTextFind& window) {
        EXPECT_EQ(pageTop(), u"Genesis 14:18"_s);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    press(Qt::Key_F7);
    expectTitle(u"Genesis 14:18"_s);
}

TEST_F(SearchKeys, f7BehindTheIndexOfAQueryLeadsBackToItsHit) {
    query(u"Melchizedek"_s);
    desktop.expectMessage(
        {u"There is no need to run the Index tool because all the verses found in your Query can "
         u"be "
         u"seen on the screen."_s,
         u"Index list not needed"_s, MessageIcon::Information});
    press(Qt::Key_I, Qt::ControlModifier);
    ASSERT_EQ(position(), u"EOF"_s);
    desktop.expectWindow([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    press(Qt::Key_F7);
    EXPECT_EQ(listed(), u"Genesis 14:18"_s);
    EXPECT_EQ(pageTop(), u"Genesis 14:18"_s);
    EXPECT_EQ(InQuery, Off);
}

TEST_F(SearchKeys, ctrlYSearchesTheNotes) {
    rsBible.Seek(u"="_s, 58, 7, 1);
    rsBible.Edit();
    rsBible.Fields(5) = u"king of Salem"_s;
    rsBible.Update();
    rsBible.MoveFirst();
    type<frmNoteSearch>(u"salem"_s, [](frmNoteSearch& window) {
        EXPECT_EQ(main().txtNote.Text(), u"king of Salem"_s);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    press(Qt::Key_Y, Qt::ControlModifier);
    expectTitle(u"Hebrews 7:1"_s);
}

TEST_F(SearchKeys, ctrlIListsTheHitsOfAQuery) {
    query(u"grace"_s);
    press(Qt::Key_I, Qt::ControlModifier);
    ASSERT_TRUE(isLoaded<frmIndex>());
    EXPECT_EQ(form<frmIndex>().lstIndex.ListCount(), 49);
    QTest::keyClick(&form<frmIndex>().lstIndex, Qt::Key_Escape);
    EXPECT_FALSE(isLoaded<frmIndex>());
}

TEST_F(SearchKeys, aQueryPagedToItsLastHitEndsThereByCtrlJ) {
    const std::pair<QString, QString> lastHits[] = {
        {u"Melchizedek"_s, u"Psalms 110:4"_s}, {u"grace"_s, u"Revelation 22:21"_s}};
    for (const auto& [word, place] : lastHits) {
        for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_Down}) {
            query(word);
            for (int turn = 0; turn < 200; ++turn) {
                main().txtMain.SetFocus();
                press(key);
                ASSERT_TRUE(main().Caption().contains(u'[' + listed() + u']'));
            }
            EXPECT_EQ(listed(), place);
            endQuery();
            expectTitle(place);
            EXPECT_TRUE(main().cboBook.Enabled());
        }
    }
}
