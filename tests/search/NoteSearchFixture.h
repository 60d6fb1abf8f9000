// The search in the user's notes, of which five are made up for it.
#pragma once

#include "basic/Error.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "reader/frmMain.h"
#include "search/frmNoteSearch.h"
#include "search/frmQuery.h"
#include "support/ProgramFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

inline const Message refusal{
    u"In a query you can't use the Notes Searcher. Press Ctrl+J to end the Query."_s,
    u"Can't Use Tool"_s, MessageIcon::Information};

inline Message noMore(const QString& text) {
    return {u"No more notes contain the text: "_s + text, u"Notes"_s, MessageIcon::Information};
}

class NoteSearchFixture : public ProgramFixture {
protected:
    void SetUp() override {
        Verses verses = sampleVerses();
        const std::pair<qsizetype, QString> notes[] = {
            {4, u"First thought"_s},                            // Genesis 1:5
            {60, u" "_s},                                       // a note that was deleted
            {56 + 175, u"A THOUGHT \" x"_s},                    // Psalms 119:176
            {56 + 176 + 6, u"my thought, 100% _ok_ [a] #1?"_s}, // Matthew 1:7
            {verses.size() - 1, u"last thought"_s}};
        for (const auto& [row, note] : notes)
            verses[row].note = note;
        addTranslation(u"KJV.mdb"_s, verses);
        startProgram();
        QCoreApplication::processEvents();
        // The start page has left the cursor on Psalms 119:160.
        ASSERT_EQ(rsBible.Fields(1).Value().toInt(), 19);
    }

    static frmMain& main() { return form<frmMain>(); }
    static frmNoteSearch& window() { return form<frmNoteSearch>(); }
    static void press(int button) {
        QTest::mouseClick(&window().cmdNoteSearch(button), Qt::LeftButton);
    }
    enum Button { First, Close, Next, Previous };

    void open(const std::function<void()>& user) {
        desktop.expectWindow([user](QWidget& opened) {
            EXPECT_EQ(opened.objectName(), u"frmNoteSearch"_s);
            user();
        });
        main().cmdMain(3).setValue(true);
        expectPlainState();
    }

    static void expectPlainState() {
        for (const Flag flag :
             {SettingCombos, SkipComboClick, HoldUpdates, StartingUp, InQuery, QueryLock})
            EXPECT_EQ(flag, Off);
        const QString place = position();
        EXPECT_TRUE(attempt([] {
            rsBible.Seek(
                u"="_s, rsBible.Fields(1).Value(), rsBible.Fields(2).Value(),
                rsBible.Fields(3).Value());
        }));
        EXPECT_FALSE(rsBible.NoMatch());
        EXPECT_EQ(position(), place);
    }

    // The page, the title, the lists, the heading and the pane of the note all show one verse.
    static void expectPlace(const QString& reference, const QString& place, const QString& note) {
        EXPECT_EQ(position(), place);
        EXPECT_TRUE(main().txtMain.Text().startsWith(reference)) << reference.toStdString();
        EXPECT_EQ(main().Caption(), u"Lumenvia Professional King James ["_s + reference + u"] "_s);
        EXPECT_EQ(main().lblCurrentNote.Caption(), u"Your note for: "_s + reference);
        EXPECT_EQ(main().txtNote.Text(), note);
    }
};
