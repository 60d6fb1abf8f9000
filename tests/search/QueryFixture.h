// The query window on a small translation of which six verses are made up for it.
#pragma once

#include "basic/Error.h"
#include "core/BookNames.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "reader/frmMain.h"
#include "search/SearchTexts.h"
#include "search/frmQuery.h"
#include "support/ProgramFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

inline const Message needText{
    u"Please enter some text to look for in at least the first text box."_s, u"Need Text"_s,
    MessageIcon::Information};
inline const Message notFound{
    u"There were no verses with the attributes you chose."_s, u"Verses Not Found"_s,
    MessageIcon::Information};

class QueryFixture : public ProgramFixture {
protected:
    void SetUp() override {
        verses = chapterOf(1, 1, 31) + chapterOf(1, 2, 25) + chapterOf(19, 119, 176)
                 + chapterOf(40, 1, 25) + chapterOf(40, 2, 23) + chapterOf(66, 22, 21);
        const std::pair<QString, QString> bodies[] = {{u"1:1:2"_s, u"There was light, and love."_s},
                                                      {u"1:1:4"_s, u"Light of lights and peace"_s},
                                                      {u"1:2:7"_s, u"More light there"_s},
                                                      {u"19:119:176"_s, u"A light: at the end"_s},
                                                      {u"40:1:3"_s, u"The LIGHT; again love"_s},
                                                      {u"66:22:21"_s, u"Amen to one."_s}};
        for (Verse& verse : verses) {
            for (const auto& [place, body] : bodies) {
                if (place == u"%1:%2:%3"_s.arg(verse.book).arg(verse.chapter).arg(verse.verse))
                    verse.body = body;
            }
        }
        addTranslation(u"KJV.mdb"_s, verses);
        startProgram();
        QCoreApplication::processEvents();
    }

    static frmMain& main() { return form<frmMain>(); }
    static void activate(QWidget& opened) {
        opened.activateWindow();
        QCoreApplication::processEvents();
    }
    static frmQuery& window() { return form<frmQuery>(); }

    static void press(CommandButton& button) { QTest::mouseClick(&button, Qt::LeftButton); }
    static void ok() { press(window().cmdQuery(0)); }
    static void cancel() { press(window().cmdQuery(3)); }

    // Opens the window, lets the user act, and returns when it is closed.
    void open(const std::function<void()>& user) {
        desktop.expectWindow([user](QWidget& opened) {
            EXPECT_EQ(opened.objectName(), u"frmQuery"_s);
            activate(opened);
            user();
        });
        main().cmdMain(5).setValue(true);
    }

    void query(const QString& first, const QString& second = {}) {
        open([&] {
            window().txtQuery(0).setText(first);
            window().txtQuery(1).setText(second);
            ok();
        });
    }

    // Whether a body holds a text in which "*" stands for any run of characters.
    static bool holds(const QString& body, const QString& text) {
        qsizetype place = 0;
        for (const QString& part : text.split(u'*')) {
            place = body.indexOf(part, place, Qt::CaseInsensitive);
            if (place < 0)
                return false;
            place += part.size();
        }
        return true;
    }

    // Queries for a text, as the first word or behind one, and checks what comes of it.
    void typeAnything(const QString& text, bool second) {
        const bool spoiled = text.contains(u'"');
        QStringList expected;
        for (const Verse& verse : verses) {
            if (!spoiled && (holds(verse.body, text) || (second && holds(verse.body, u"amen"_s))))
                expected.append(u"%1:%2:%3"_s.arg(verse.book).arg(verse.chapter).arg(verse.verse));
        }
        desktop.expectWindow([&](QWidget&) {
            window().txtQuery(0).setText(second ? u"amen"_s : text);
            window().txtQuery(1).setText(second ? text : QString());
            if (spoiled)
                desktop.expectMessage(sqlErrorOf(window()));
            else if (expected.isEmpty())
                desktop.expectMessage(notFound);
            ok();
            if (isLoaded<frmQuery>())
                cancel();
        });
        main().cmdMain(5).setValue(true);
        if (!expected.isEmpty()) {
            EXPECT_EQ(hits(), expected) << text.toStdString();
        }
        endQuery();
        expectFlags(Off, Off);
        EXPECT_TRUE(isTableCursor());
    }

    // The box that the store's own error leads to.
    static Message sqlErrorOf(frmQuery& form) {
        form.MakeSQLString();
        QString reason;
        try {
            dbBible.OpenRecordset(QuerySQL, dbOpenDynaset);
        } catch (const Error& error) {
            reason = error.text();
        }
        EXPECT_FALSE(reason.isEmpty());
        return {
            u"Error in Setting up Query: \n\n"_s + reason, u"SQL Error"_s,
            MessageIcon::Information};
    }

    static void endQuery() { main().mnuSearch(1).trigger(); }

    static QStringList pageLines() {
        QStringList lines = main().txtMain.Text().split(u'\n', Qt::SkipEmptyParts);
        for (QString& line : lines)
            line = line.trimmed();
        return lines;
    }

    static QStringList hits() {
        QStringList places;
        for (rsBible.MoveFirst(); !rsBible.Eof(); rsBible.MoveNext())
            places.append(position());
        rsBible.MoveFirst();
        return places;
    }

    static bool areListsEnabled() {
        return main().cmbTestament.Enabled() && main().cboBook.Enabled()
               && main().cboChapter.Enabled() && main().cboVerse.Enabled();
    }
    static bool areListsDisabled() {
        return !main().cmbTestament.Enabled() && !main().cboBook.Enabled()
               && !main().cboChapter.Enabled() && !main().cboVerse.Enabled();
    }

    static void expectFlags(Flag inQuery, Flag queryLock) {
        EXPECT_EQ(InQuery, inQuery);
        EXPECT_EQ(QueryLock, queryLock);
        for (const Flag flag : {SettingCombos, SkipComboClick, HoldUpdates, StartingUp})
            EXPECT_EQ(flag, Off);
    }

    static bool isTableCursor() {
        return attempt([] { rsBible.Seek(u"="_s, 40, 2, 1); }) && !rsBible.NoMatch();
    }

    static QString listed() {
        return main().cboBook.Text() + u' ' + main().cboChapter.Text() + u':'
               + main().cboVerse.Text();
    }

    Verses verses;
};
