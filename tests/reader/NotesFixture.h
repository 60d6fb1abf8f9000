// The note pane of the real window, standing on Matthew 1:1 with the focus in it.
#pragma once

#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "reader/frmMain.h"
#include "settings/SettingsStore.h"
#include "support/ProgramFixture.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

class Notes : public ProgramFixture {
protected:
    void SetUp() override {
        // So that the cursor stands on Matthew 1:1 behind its page.
        SaveSetting(ApplicationName, SettingsSection, u"VersesPerPage"_s, u"24"_s);
        startProgram();
        QCoreApplication::processEvents();
        note().SetFocus();
    }

    static frmMain& window() { return form<frmMain>(); }
    static MultilineTextBox& note() { return window().txtNote; }

    static void type(const QString& text) { QTest::keyClicks(&note(), text); }

    static void selectAll() { QTest::keyClick(&note(), Qt::Key_A, Qt::ControlModifier); }

    // The note of a verse as it is in the file.
    static QVariant stored(int book = 40, int chapter = 1, int verse = 1) {
        Recordset rows = dbBible.OpenRecordset(u"tblMain"_s, dbOpenTable);
        rows.Index(u"VerseIndex"_s);
        rows.Seek(u"="_s, book, chapter, verse);
        return rows.Fields(5).Value();
    }

    static void show(int book, int chapter, int verse) {
        rsBible.Seek(u"="_s, book, chapter, verse);
        window().UpDateBibleText(true);
    }

    QString rescued() const {
        QFile file(programFile(u"unsaved notes.txt"_s));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
};
