#include "core/GlobalCode.h"

#include "Configuration.h"
#include "basic/Conversion.h"
#include "basic/Error.h"
#include "basic/Text.h"
#include "core/BookNames.h"
#include "core/Catalogue.h"
#include "desktop/Desktop.h"
#include "desktop/FileAttributes.h"
#include "desktop/HostPath.h"
#include "reader/frmMain.h"

#include <QDir>

using namespace Qt::StringLiterals;

Workspace wsBible;
Database dbBible;
Recordset rsBible;
qint16 CurrentBible = 0;
Flag FoundBible = Off;
Flag StartingUp = Off;
Flag HoldUpdates = Off;
Flag SkipComboClick = Off;
Flag QueryLock = Off;
Flag SettingCombos = Off;
Flag InQuery = Off;
Flag ScreenBusy = Off;
QString HomePath;
QString HelpFile;
QString IndexText;
Flag TipsRequested = Off;
QString PopupWord;
int DownloadItem = 0;
std::array<QString, QueryWordCount> QueryWords;
std::array<QString, QueryWordCount> QueryHistory;
std::array<QString, QueryWordCount - 1> QueryOperators;
QString QuerySQL;
bool OldQueryBoth = false;
int OldQueryBook = 0;
int OldQueryScope = 0;
bool OldQueryWhole = false;
qint16 QueryCancelled = 0;
std::array<QString, 2> OldSearchWords;
int OldSearchBook = 0;
int OldSearchTestament = 0;
bool OldSearchWholeWord = false;
bool OldSearchBoth = false;
std::array<QString, 101> TempFiles;

namespace {

// Where data files may lie, in the order of the search; each is set before the bare name. The
// doubled backslash of the fourth place and its plain twin further down are both searched.
QStringList dataFilePlaces() {
    return {
        {},
        programFolder() + u"\\"_s,
        QDir::currentPath() + u"\\"_s,
        u"c:\\bibles\\\\"_s,
        u"c:\\lumenvia\\"_s,
        u"c:\\tessera\\"_s,
        u"c:\\quillpage\\"_s,
        u"c:\\oakverse\\"_s,
        u"c:\\Program Files\\Tessera Software\\Study Almanac\\Bible Versions\\"_s,
        u"c:\\Program Files\\Tessera Software\\Study Almanac\\"_s,
        u"c:\\bibles\\"_s,
        u"d:\\bibles\\"_s,
        u"c:\\bible\\"_s,
        u"d:\\bible\\"_s};
}

QString referenceOfCurrentRow() {
    return bookName(rsBible.Fields(1).Value()) + u' ' + toText(rsBible.Fields(2).Value()) + u':'
           + toText(rsBible.Fields(3).Value());
}

// Whether the translation is open anew; the user is told where its file is gone.
bool reopenBible(const QString& missingTitle, RecordsetType type) {
    const QString& file = BibleFile[static_cast<size_t>(CurrentBible)];
    const QString path = FindDataFile(file);
    if (path == u"BAD") {
        MsgBox(
            file + u" is not in "_s + programFolder() + u"\r\n\r\nGet your free copy from "_s
                + configuration::HomeUrl + u"\r\n\r\nContact "_s + configuration::SupportAddress
                + u" for more info if needed."_s,
            MessageIcon::Information, missingTitle);
        return false;
    }
    // What an earlier failure left closed must not keep this opening from trying again.
    attempt([] { rsBible.Close(); });
    attempt([] { dbBible.Close(); });
    wsBible = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
    dbBible = wsBible.OpenDatabase(path);
    rsBible = dbBible.OpenRecordset(u"tblMain"_s, type);
    return true;
}

} // namespace

void InitGlobals() {
    SkipComboClick = Off;
    const QString help = FindDataFile(u"bible.hlp"_s);
    if (help != u"BAD")
        HelpFile = help;
    InQuery = Off;
    IndexText = u"31222"_s;
    QueryWords.fill({});
    QueryHistory.fill({});
    QuerySQL.clear();
    OldQueryBoth = false;
    OldQueryBook = 0;
    OldQueryScope = 0;
    OldQueryWhole = false;
    QueryCancelled = 0;
    OldSearchWords.fill({});
    OldSearchBook = 0;
    OldSearchTestament = 0;
    OldSearchWholeWord = false;
    OldSearchBoth = false;
    QueryOperators.fill(u"OR"_s);
    fillCatalogue();
    TipsRequested = Off;
}

QString FindDataFile(const QString& name) {
    for (const QString& place : dataFilePlaces()) {
        QString path = place + name;
        if (!FileExists(path))
            continue;
        attempt([&] {
            if (GetAttr(path) != 0)
                clearAttributes(path);
        });
        return path;
    }
    return u"BAD"_s;
}

QString VerseReference() {
    QString reference;
    if (attempt([&] { reference = referenceOfCurrentRow(); }))
        return reference;
    attempt([] { rsBible.MoveFirst(); });
    if (attempt([&] { reference = referenceOfCurrentRow(); }))
        attempt([] { form<frmMain>().UpDateBibleText(true); });
    return reference;
}

void OpenBibleTable() {
    if (StartingUp == On)
        return;
    if (reopenBible(u"Plug in not found"_s, dbOpenTable))
        rsBible.Index(u"VerseIndex"_s);
}

void OpenBibleDynaset() {
    reopenBible(u"Not Found"_s, dbOpenDynaset);
}
