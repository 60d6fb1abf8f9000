#include "settings/SettingsStore.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString program = u"Lumenvia Professional"_s;
const QString section = u"Lumenvia"_s;

class SettingsStore : public testing::Test {
protected:
    void SetUp() override { restart(); }
    void TearDown() override { setSettingsFolder({}); }

    // What another run of the program sees.
    void restart() { setSettingsFolder(m_folder.path()); }

    QString file() const { return m_folder.filePath(program + u".ini"_s); }

    QString content() const {
        QFile stored(file());
        return stored.open(QIODevice::ReadOnly) ? QString::fromUtf8(stored.readAll()) : QString();
    }

    void write(const QByteArray& text) {
        QFile stored(file());
        ASSERT_TRUE(stored.open(QIODevice::WriteOnly));
        stored.write(text);
        stored.close();
        restart();
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(SettingsStore, aMissingKeyGivesItsDefault) {
    EXPECT_EQ(GetSetting(program, section, u"VersesPerPage"_s, u"40"_s), u"40"_s);
    EXPECT_EQ(GetSetting(program, section, u"Header"_s), QString());
}

TEST_F(SettingsStore, aValueSurvivesTheProgram) {
    SaveSetting(program, section, u"Header"_s, u" a, b; \"c\" = \\ é\n漢 "_s);
    flushSettings();
    restart();
    EXPECT_EQ(GetSetting(program, section, u"Header"_s), u" a, b; \"c\" = \\ é\n漢 "_s);
}

TEST_F(SettingsStore, anEmptyValueIsNoMissingOne) {
    SaveSetting(program, section, u"Header"_s, {});
    flushSettings();
    restart();
    EXPECT_EQ(GetSetting(program, section, u"Header"_s, u"default"_s), QString());
}

TEST_F(SettingsStore, keysAreComparedWithoutCase) {
    SaveSetting(program, section, u"PrintRightmargin"_s, u".5"_s);
    EXPECT_EQ(GetSetting(program, section, u"PrintRightMargin"_s, u".6"_s), u".5"_s);
    SaveSetting(program, section, u"PRINTRIGHTMARGIN"_s, u".4"_s);
    flushSettings();
    EXPECT_TRUE(content().contains(u"PrintRightmargin=.4"_s)) << content().toStdString();
    EXPECT_EQ(content().count(u"margin"_s, Qt::CaseInsensitive), 1);
}

TEST_F(SettingsStore, applicationsAndSectionsAreApart) {
    SaveSetting(program, u"Last"_s, u"book"_s, u"40"_s);
    SaveSetting(u"lumenvia"_s, u"Last"_s, u"book"_s, u"1"_s);
    EXPECT_EQ(GetSetting(program, u"Last"_s, u"book"_s), u"40"_s);
    EXPECT_EQ(GetSetting(u"lumenvia"_s, u"Last"_s, u"book"_s), u"1"_s);
    EXPECT_EQ(GetSetting(program, section, u"book"_s, u"none"_s), u"none"_s);
}

TEST_F(SettingsStore, whatThisProgramDidNotChangeIsLeftToTheOther) {
    write("[Lumenvia]\nBookmarkTEXT0=\nBookmarkTEXT1=mine\n");
    EXPECT_EQ(GetSetting(program, section, u"BookmarkTEXT0"_s), QString());
    EXPECT_EQ(GetSetting(program, section, u"BookmarkTEXT1"_s), u"mine"_s);
    {
        QFile other(file()); // another running program adds a bookmark
        ASSERT_TRUE(other.open(QIODevice::WriteOnly));
        other.write("[Lumenvia]\nBookmarkTEXT0=theirs\nBookmarkTEXT1=mine\n");
    }
    SaveSetting(program, section, u"BookmarkTEXT0"_s, {});
    SaveSetting(program, section, u"BookmarkTEXT1"_s, u"changed"_s);
    flushSettings();
    SaveSetting(program, section, u"BookmarkTEXT0"_s, {}); // still nothing of ours
    flushSettings();
    restart();
    EXPECT_EQ(GetSetting(program, section, u"BookmarkTEXT0"_s), u"theirs"_s);
    EXPECT_EQ(GetSetting(program, section, u"BookmarkTEXT1"_s), u"changed"_s);
}

TEST_F(SettingsStore, aValueWithCommasWrittenByHandIsReadAsText) {
    write("[Lumenvia]\nHeader=one, two\n");
    EXPECT_EQ(GetSetting(program, section, u"Header"_s), u"one, two"_s);
}

TEST_F(SettingsStore, aDamagedFileGivesDefaultsAndIsKept) {
    const QByteArray damage = "[Lumenvia\n\x00\xff garbage \x01\n====\nno section";
    write(damage);
    EXPECT_EQ(GetSetting(program, section, u"VersesPerPage"_s, u"40"_s), u"40"_s);
    SaveSetting(program, section, u"VersesPerPage"_s, u"41"_s);
    flushSettings();
    restart();
    EXPECT_EQ(GetSetting(program, section, u"VersesPerPage"_s, u"40"_s), u"41"_s);
    QFile kept(file() + u".damaged"_s);
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), damage);
}

TEST_F(SettingsStore, aFolderThatCannotBeWrittenIsSilence) {
    QFile inTheWay(m_folder.filePath(u"file"_s));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    setSettingsFolder(m_folder.filePath(u"file/below"_s));
    SaveSetting(program, section, u"VersesPerPage"_s, u"41"_s);
    flushSettings();
    EXPECT_EQ(GetSetting(program, section, u"VersesPerPage"_s, u"40"_s), u"41"_s);
}
