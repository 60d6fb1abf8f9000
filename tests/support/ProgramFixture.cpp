#include "support/ProgramFixture.h"

#include "basic/Error.h"
#include "controls/Forms.h"
#include "controls/Handler.h"
#include "core/BookNames.h"
#include "core/GlobalCode.h"
#include "core/NewSetup.h"
#include "core/Settings.h"
#include "settings/SettingsStore.h"
#include "store/DataFile.h"

#include <QDir>
#include <QFile>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

// Lays down the rights of an administrator for as long as it lives.
class PlainUser {
public:
#ifdef Q_OS_UNIX
    PlainUser() {
        if (!m_isAdministrator)
            return;
        constexpr uid_t Nobody = 65534;
        EXPECT_EQ(setregid(Nobody, Nobody), 0);
        EXPECT_EQ(setreuid(Nobody, 0), 0); // keeps the way back
        EXPECT_EQ(seteuid(Nobody), 0);
    }
    ~PlainUser() {
        if (!m_isAdministrator)
            return;
        EXPECT_EQ(seteuid(0), 0);
        EXPECT_EQ(setreuid(0, 0), 0);
        EXPECT_EQ(setregid(m_group, m_group), 0);
    }
#else
    PlainUser() = default;
    ~PlainUser() = default;
#endif
    Q_DISABLE_COPY_MOVE(PlainUser)

private:
#ifdef Q_OS_UNIX
    bool m_isAdministrator = geteuid() == 0;
    gid_t m_group = getgid();
#endif
};

} // namespace

Verses chapterOf(int book, int chapter, int count) {
    Verses verses;
    for (int verse = 1; verse <= count; ++verse) {
        const QString place = u"%1:%2:%3"_s.arg(book).arg(chapter).arg(verse);
        verses.append({book, chapter, verse, u"Verse "_s + place + u'.'});
    }
    return verses;
}

Verses sampleVerses() {
    return chapterOf(1, 1, 31) + chapterOf(1, 2, 25) + chapterOf(19, 119, 176)
           + chapterOf(40, 1, 25) + chapterOf(40, 2, 23) + chapterOf(66, 22, 21);
}

ProgramFixture::ProgramFixture()
    : m_homeBefore(qgetenv("LUMENVIA_HOME")) {
    qputenv("LUMENVIA_HOME", m_home.path().toLocal8Bit());
    QDir::setCurrent(m_home.path());
    setSettingsFolder(m_settings.path());
    resetProgram();
}

ProgramFixture::~ProgramFixture() {
    forms::discardAll();
    resetProgram();
    setSettingsFolder({});
    QDir::setCurrent(QDir::rootPath());
    qputenv("LUMENVIA_HOME", m_homeBefore);
}

void ProgramFixture::resetProgram() {
    rsBible = {};
    dbBible = {};
    wsBible = {};
    CurrentBible = 0;
    for (Flag* flag :
         {&FoundBible, &StartingUp, &HoldUpdates, &SkipComboClick, &QueryLock, &SettingCombos,
          &InQuery, &ScreenBusy, &TipsRequested})
        *flag = Off;
    for (QString* text : {&HomePath, &HelpFile, &IndexText, &PopupWord})
        text->clear();
    DownloadItem = 0;
    TempFiles.fill({});
    BookNames.fill({});
    resetSettings();
    InitGlobals();
}

void ProgramFixture::addTranslation(const QString& name, const Verses& verses) {
    DataFileWriter writer(programFile(name));
    createTranslationSchema(writer);
    int id = 0;
    for (const Verse& verse : verses)
        writer.insert(
            u"tblMain"_s, {++id, verse.book, verse.chapter, verse.verse, verse.body, verse.note});
    writer.finish();
}

void ProgramFixture::openTranslation(const Verses& verses, const QString& name) {
    addTranslation(name, verses);
    CurrentBible = 2;
    StartingUp = On; // names alone, no list
    SelectBookNames(0);
    StartingUp = Off;
    wsBible = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
    dbBible = wsBible.OpenDatabase(programFile(name));
    rsBible = dbBible.OpenRecordset(u"tblMain"_s, dbOpenTable);
    rsBible.Index(u"VerseIndex"_s);
}

void ProgramFixture::startProgram() {
    if (QDir(m_home.path()).isEmpty())
        addTranslation(u"KJV.mdb"_s, sampleVerses());
    Main();
}

void ProgramFixture::restartProgram() {
    forms::discardAll();
    forgetProgramEnd();
    resetProgram();
    setSettingsFolder(m_settings.path());
    Main();
}

void ProgramFixture::asPlainUser(Folder folder, const std::function<void()>& action) {
    using enum QFileDevice::Permission;
    QFileDevice::Permissions allowed =
        ReadOwner | ExeOwner | ReadGroup | ExeGroup | ReadOther | ExeOther;
    if (folder == Folder::Writable)
        allowed |= WriteOwner | WriteGroup | WriteOther;
    const QFileDevice::Permissions before = QFile::permissions(m_home.path());
    ASSERT_TRUE(QFile::setPermissions(m_home.path(), allowed));
    {
        const PlainUser user;
        action();
    }
    QFile::setPermissions(m_home.path(), before);
}

QString ProgramFixture::settingsText(const QString& application) const {
    QFile file(m_settings.filePath(application + u".ini"_s));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString ProgramFixture::position() {
    QString place = u"none"_s;
    attempt([&] {
        if (rsBible.Bof())
            place = u"BOF"_s;
        if (rsBible.Eof())
            place = u"EOF"_s;
        place = u"%1:%2:%3"_s.arg(rsBible.Fields(1).Value().toString())
                    .arg(rsBible.Fields(2).Value().toString())
                    .arg(rsBible.Fields(3).Value().toString());
    });
    return place;
}
