// The index of a query's hits, on the sample verses.
#pragma once

#include "basic/Error.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "reader/frmMain.h"
#include "search/frmIndex.h"
#include "search/frmQuery.h"
#include "search/frmWorking.h"
#include "support/ProgramFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

inline const Message question{
    u"The Index tool is used to see the results of a Query in a Quick Pick List. \n\r\n\r"
    u"Show the Querying Tool?"_s,
    u"Index Tool"_s, MessageIcon::Question, MessageButtons::YesNo};
inline const Message fewerThanAPage{
    u"There is no need to run the Index tool because the number of verses found is less than "
    u"what you can see on the screen."_s,
    u"Index list not needed"_s, MessageIcon::Information};
inline const Message allOnThePage{
    u"There is no need to run the Index tool because all the verses found in your Query can be "
    u"seen on the screen."_s,
    u"Index list not needed"_s, MessageIcon::Information};

class IndexFixture : public ProgramFixture {
protected:
    // 25 + 23 verses with "Verse 40", 176 with "Verse 19".
    void SetUp() override {
        startProgram();
        QCoreApplication::processEvents();
        VersesPerPage = 5;
    }

    static frmMain& main() { return form<frmMain>(); }
    static frmIndex& window() { return form<frmIndex>(); }
    static void press(CommandButton& button) { QTest::mouseClick(&button, Qt::LeftButton); }
    static void open() { main().cmdMain(10).setValue(true); }

    void query(const QString& word) {
        desktop.expectWindow([word](QWidget&) {
            form<frmQuery>().txtQuery(0).setText(word);
            form<frmQuery>().cmdQuery(0).setValue(true);
        });
        main().cmdMain(5).setValue(true);
        rsBible.MoveFirst();
    }

    static void expectNoFlag() {
        for (const Flag flag : {SettingCombos, SkipComboClick, HoldUpdates, StartingUp})
            EXPECT_EQ(flag, Off);
    }

    static QString listed() {
        return main().cboBook.Text() + u' ' + main().cboChapter.Text() + u':'
               + main().cboVerse.Text();
    }
};
