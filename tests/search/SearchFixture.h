// Tests of the searches, on a Bible of nine verses about grace and peace.
#pragma once

#include "core/GlobalCode.h"
#include "reader/frmMain.h"
#include "support/ProgramFixture.h"

#include <QCoreApplication>

class SearchFixture : public ProgramFixture {
protected:
    void SetUp() override {
        addTranslation(QStringLiteral("KJV.mdb"), graceVerses());
        startProgram();
        QCoreApplication::processEvents();
    }

    // Starts the program on other verses.
    void startOn(const Verses& verses) {
        addTranslation(QStringLiteral("KJV.mdb"), verses);
        restartProgram();
        QCoreApplication::processEvents();
    }

    // Puts the verses that hold a text in the place of the cursor, as a query does, which stays on.
    static void beInQuery(const QString& text) {
        rsBible = dbBible.OpenRecordset(
            QStringLiteral("SELECT * FROM tblMain WHERE (((body like \"*%1*\")) )").arg(text),
            dbOpenDynaset);
        InQuery = On;
        QueryLock = On;
        window().enableLists(false);
    }

    static Verses graceVerses() {
        return {
            {1, 1, 1, QStringLiteral("In the beginning grace was there.")},
            {1, 1, 2, QStringLiteral("Now grace, and peace."), QStringLiteral("a note")},
            {1, 1, 3, QStringLiteral("A disgrace to all.")},
            {1, 2, 1, QStringLiteral("No such word.")},
            {2, 1, 1, QStringLiteral("Peace with grace?")},
            {19, 119, 176, QStringLiteral("My grace; at last.")},
            {40, 1, 1, QStringLiteral("The grace of the book.")},
            {40, 1, 2, QStringLiteral("grace begins this one.")},
            {66, 22, 21, QStringLiteral("The grace of our Lord and peace.")},
        };
    }

    static frmMain& window() { return form<frmMain>(); }

    // What the lists of the main window show, such as "Matthew 1 2".
    static QString listed() {
        return window().cboBook.Text() + u' ' + window().cboChapter.Text() + u' '
               + window().cboVerse.Text();
    }

    // The first line of the page.
    static QString pageTop() { return window().txtMain.Text().section(u'\n', 0, 0).trimmed(); }

    static void show(int book, int chapter, int verse) {
        rsBible.Seek(QStringLiteral("="), book, chapter, verse);
        window().UpDateBibleText(true);
    }

    // A table cursor can seek, and no list is held.
    static void expectReadingAgain() {
        EXPECT_NO_THROW(rsBible.Seek(
            QStringLiteral("="), rsBible.Fields(1).Value(), rsBible.Fields(2).Value(),
            rsBible.Fields(3).Value()));
        EXPECT_FALSE(rsBible.NoMatch());
        for (const Flag flag : {HoldUpdates, QueryLock, SettingCombos, SkipComboClick, InQuery})
            EXPECT_EQ(flag, Off);
        EXPECT_TRUE(window().txtMain.Visible());
        EXPECT_NE(window().cursor().shape(), Qt::WaitCursor);
    }
};
