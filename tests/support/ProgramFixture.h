// Tests of the program: each gets a program folder and a settings store of its own, a scripted
// desktop, and the shared state as it is before the first run.
#pragma once

#include "support/ScriptedDesktop.h"

#include <QTemporaryDir>
#include <QVariant>
#include <gtest/gtest.h>

// One row of a small translation. A note without a value is Null.
struct Verse {
    int book;
    int chapter;
    int verse;
    QString body;
    QVariant note = {};
};

using Verses = QList<Verse>;

// Verses 1 to `count` of a chapter; each says where it stands: "Verse 40:1:2.".
Verses chapterOf(int book, int chapter, int count);

// Genesis 1 and 2, Psalm 119, Matthew 1 and 2, and Revelation 22, with their real lengths.
Verses sampleVerses();

class ProgramFixture : public testing::Test {
protected:
    ProgramFixture();
    ~ProgramFixture() override;

    QString programFile(const QString& name) const { return m_home.filePath(name); }

    // Makes a translation in the program's folder.
    void addTranslation(const QString& name, const Verses& verses);

    // Opens the cursor on a translation, with no window.
    void openTranslation(const Verses& verses, const QString& name = QStringLiteral("KJV.mdb"));

    // Starts the program on the sample verses as KJV.mdb, or on what the test has added.
    void startProgram();

    // Starts the program once more, as a new process does: with what the files and the settings
    // store hold, and nothing else.
    void restartProgram();

    // Runs the action as a user without the rights of an administrator, whom no permission stops.
    // He can read the program's folder, and write in it or not.
    enum class Folder { Writable, ReadOnly };
    void asPlainUser(Folder folder, const std::function<void()>& action);

    // What the settings file of an application holds on disk.
    QString settingsText(const QString& application) const;

    // What the cursor stands on, such as "40:1:1"; "BOF", "EOF" or "none".
    static QString position();

    ScriptedDesktop desktop;

private:
    static void resetProgram();

    QTemporaryDir m_home;
    QTemporaryDir m_settings;
    QByteArray m_homeBefore;
};
