// Ten thousand actions of a user over the search windows and the main window. Whatever he does, End
// Query gives him back a plain reader.
#include "basic/Error.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "reader/frmMain.h"
#include "search/RandomUser.h"
#include "search/frmIndex.h"
#include "support/ProgramFixture.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr int Actions = 10000;
constexpr int ActionsInWalk = 100;

class RandomWalk : public ProgramFixture {
protected:
    void SetUp() override {
        Verses verses = chapterOf(1, 1, 9) + chapterOf(1, 2, 6) + chapterOf(2, 1, 4);
        verses += {{19, 119, 175, u"A light, and love"_s}, {19, 119, 176, u"a light."_s}};
        verses += chapterOf(40, 1, 12) + chapterOf(40, 2, 3) + chapterOf(66, 22, 5);
        verses[3].note = u"a note of light"_s;
        verses.last().body = u"love"_s;
        for (const QString& name : {u"KJV.mdb"_s, u"YLT.mdb"_s})
            addTranslation(name, verses);
        startProgram();
        QCoreApplication::processEvents();
        VersesPerPage = 4;
        NumIndexItems = 8;
    }

    static QStringList bodies() {
        QStringList texts;
        Recordset rows = dbBible.OpenRecordset(u"tblMain"_s, dbOpenDynaset);
        for (; !rows.Eof(); rows.MoveNext())
            texts.append(
                rows.Fields(0).Value().toString() + u' ' + rows.Fields(3).Value().toString() + u' '
                + rows.Fields(4).Value().toString());
        return texts;
    }

    static bool areListsEnabled(bool enabled) {
        frmMain& main = form<frmMain>();
        for (const ComboBox* list :
             {&main.cmbTestament, &main.cboBook, &main.cboChapter, &main.cboVerse}) {
            if (list->Enabled() != enabled)
                return false;
        }
        return true;
    }

    // What holds between any two actions.
    static bool isCalm() {
        const bool noFlag = StartingUp == Off && HoldUpdates == Off && SkipComboClick == Off
                            && SettingCombos == Off && (QueryLock == Off || InQuery == On);
        return noFlag && areListsEnabled(InQuery == Off) && form<frmMain>().txtMain.Visible()
               && form<frmMain>().cursor().shape() != Qt::WaitCursor;
    }

    static bool isPlainReader() {
        const bool seeks = attempt([] {
            rsBible.Seek(
                u"="_s, rsBible.Fields(1).Value(), rsBible.Fields(2).Value(),
                rsBible.Fields(3).Value());
        });
        return seeks && !rsBible.NoMatch() && InQuery == Off && QueryLock == Off;
    }

    // One walk and its end; false where something did not hold.
    bool walk(RandomUser& user) {
        const int end = user.actions() + ActionsInWalk;
        while (user.actions() < end) {
            user.act();
            inQuery += InQuery == On ? 1 : 0;
            atIndex += isLoaded<frmIndex>() ? 1 : 0;
            if (!isCalm())
                return false;
        }
        user.closeWindows();
        form<frmMain>().mnuSearch(1).trigger();
        return isCalm() && isPlainReader();
    }

    // How many actions began in a query, and with the index open.
    int inQuery = 0;
    int atIndex = 0;
};

} // namespace

TEST_F(RandomWalk, endsWithAPlainReaderWheneverTheQueryEnds) {
    const QStringList before = bodies();
    RandomUser user(20031);
    setDesktop(&user);
    while (user.actions() < Actions) {
        ASSERT_TRUE(walk(user)) << "action " << user.actions() << "\n"
                                << user.story().toStdString() << "\nat "
                                << position().toStdString();
    }
    EXPECT_EQ(bodies(), before);
    for (const QString& name :
         {u"frmQuery"_s, u"frmSimpleFind"_s, u"frmHolyTextFind"_s, u"frmNoteSearch"_s})
        EXPECT_GT(user.visits(name), 50) << name.toStdString();
    EXPECT_GT(inQuery, 300);
    EXPECT_GT(atIndex, 50);
    setDesktop(&desktop);
}
