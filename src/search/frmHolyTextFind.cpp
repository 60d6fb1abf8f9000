#include "search/frmHolyTextFind.h"

#include "basic/Error.h"
#include "basic/Text.h"
#include "core/GlobalCode.h"
#include "core/ModCode.h"
#include "desktop/Desktop.h"
#include "reader/frmMain.h"
#include "search/HitMarks.h"
#include "search/SearchCriteria.h"
#include "search/SearchScope.h"
#include "search/WindowPlace.h"

using namespace Qt::StringLiterals;

namespace {

const QString LongCaption = u"Advanced Search of Verses"_s;

enum Button { FindFirst, Close, Query, FindNext, FindPrevious };

bool isFind(int index) {
    return index == FindFirst || index == FindNext || index == FindPrevious;
}

// The five whole-word patterns of a word, each in a term of its own.
QString wholeWordTerms(const QString& word) {
    return wholeWordPatterns(word, u".:;,"_s, u") or (body like "_s) + u')';
}

} // namespace

void frmHolyTextFind::Form_Load() {
    SettingCombos = On;
    placeInCorner(*this);
    if (currentVerseRow())
        takePlace();
    else
        takeListedPlace();
    Repositioned = false;
    showHourglass();
    cboTestament.setListIndex(0);
    fillBookScope(cboBook, u"All"_s);
    SavedTestament = static_cast<qint16>(form<frmMain>().cmbTestament.ListIndex());
    attempt([] { OpenBibleDynaset(); });
    if (const std::optional<VerseRow> first = currentVerseRow())
        findVerseRow(*first);
    showNormalPointer();
    restoreOldSearch();
}

void frmHolyTextFind::restoreOldSearch() {
    for (int word = 0; word < 2; ++word)
        txtFind(word).setText(OldSearchWords[static_cast<size_t>(word)]);
    txtFind(0).selectAll();
    attempt([this] { cboBook.setListIndex(OldSearchBook); });
    attempt([this] { cboTestament.setListIndex(OldSearchTestament); });
    chkMatchWholeWord.setValue(OldSearchWholeWord);
    optAndOr(0).setValue(OldSearchBoth);
}

void frmHolyTextFind::RememberOldSearch() const {
    for (int word = 0; word < 2; ++word)
        OldSearchWords[static_cast<size_t>(word)] = txtFind(word).Text();
    OldSearchBook = cboBook.ListIndex();
    OldSearchTestament = cboTestament.ListIndex();
    OldSearchWholeWord = chkMatchWholeWord.Value();
    OldSearchBoth = optAndOr(0).Value();
}

// The alternatives of a whole first word are not grouped apart: an AND binds to the last of them
// alone.
void frmHolyTextFind::MakeSQL() {
    const QString first = txtFind(0).Text();
    const QString second = txtFind(1).Text();
    const bool whole = chkMatchWholeWord.Value();
    const QString join = optAndOr(0).Value() ? u" AND "_s : u" OR "_s;
    SearchSQL = whole ? u" ((body like "_s + wholeWordTerms(first)
                      : u" ((( body like "_s + anywherePattern(first) + u"))"_s;
    if (!second.isEmpty())
        SearchSQL += u' ' + join
                     + (whole ? u"( (body like "_s + wholeWordTerms(second) + u')'
                              : u"(( body like "_s + anywherePattern(second) + u"))"_s);
    SearchSQL += u')';
    if (cboBook.ListIndex() > 0)
        SearchSQL += u" AND ((book = "_s + Trim(Str(cboBook.ListIndex())) + u"))"_s;
    if (cboTestament.ListIndex() == 1)
        SearchSQL += u" AND ((book < 40))"_s;
    else if (cboTestament.ListIndex() == 2)
        SearchSQL += u" AND ((book > 39))"_s;
}

void frmHolyTextFind::DoSearch() {
    showNormalPointer();
    QueryWords[0] = txtFind(0).Text();
    QueryWords[1] = txtFind(1).Text();
}

void frmHolyTextFind::DoColor() {
    showHourglass();
    markHits(form<frmMain>().txtMain, {txtFind(0).Text(), txtFind(1).Text()});
    showNormalPointer();
}

void frmHolyTextFind::cmdHolyTextFind_Click(int Index) {
    showHourglass();
    RememberOldSearch();
    setCaption(u"Searching..."_s);
    if (isFind(Index) && txtFind(0).Text().isEmpty()) {
        showNormalPointer();
        MsgBox(
            u"Please enter some text to search for."_s, MessageIcon::Information, u"Need Text"_s);
        txtFind(0).SetFocus();
        return;
    }
    try {
        search(Index);
    } catch (const Error&) {
        showNormalPointer();
        setCaption(LongCaption);
        throw;
    }
    if (Index == Close)
        leave();
    else
        showHit();
}

void frmHolyTextFind::search(int Index) {
    if (isFind(Index))
        moveToScope();
    MakeSQL();
    if (Index == FindNext)
        findNext();
    else if (Index == FindPrevious)
        findPrevious();
}

void frmHolyTextFind::moveToScope() {
    if (Repositioned)
        return;
    Repositioned = true;
    rsBible.FindFirst(scopeStart(cboTestament.ListIndex(), cboBook.ListIndex()));
}

void frmHolyTextFind::findNext() {
    rsBible.FindNext(SearchSQL);
    DoSearch();
    if (rsBible.NoMatch())
        offerBeginning();
    else
        takePlace();
}

// The beginning is that of the Bible, whatever the scope. Close still leads to the last hit.
void frmHolyTextFind::offerBeginning() {
    showNormalPointer();
    const Answer answer = MsgBox(
        u"No verses found from this point FORWARD.\r\n\r\n"
        u"Would you like to search from the beginning of the Bible?"_s,
        MessageIcon::Question, u"Not Found"_s, MessageButtons::YesNo);
    if (answer != Answer::Yes)
        return;
    rsBible.FindFirst(FirstVerseCriteria);
    MsgBox(
        u"The current verse is now at the beginning of the Bible. Press Find Next to continue."_s,
        MessageIcon::Information, u""_s);
}

void frmHolyTextFind::findPrevious() {
    rsBible.FindPrevious(SearchSQL);
    DoSearch();
    if (rsBible.NoMatch())
        MsgBox(
            u"There were no verse found prior to the current verse."_s, MessageIcon::Information,
            u"Not Found"_s);
    else
        takePlace();
}

void frmHolyTextFind::takePlace() {
    attempt([this] { LastBook = rsBible.Fields(1).Value(); });
    attempt([this] { LastChapter = rsBible.Fields(2).Value(); });
    attempt([this] { LastVerse = rsBible.Fields(3).Value(); });
}

// Behind a walk of the index no row is left; the lists still show where the reader is.
void frmHolyTextFind::takeListedPlace() {
    const auto& main = form<frmMain>();
    LastBook = main.cboBook.ListIndex() + 1;
    LastChapter = Val(main.cboChapter.Text());
    LastVerse = Val(main.cboVerse.Text());
}

void frmHolyTextFind::showHit() {
    auto& main = form<frmMain>();
    showHourglass();
    HoldUpdates = On;
    SettingCombos = On;
    main.setListsToCursor();
    HoldUpdates = Off;
    const std::optional<VerseRow> hit = currentVerseRow();
    attempt([&] { main.UpDateBibleText(true); });
    // The page has rewound the cursor; from there the next search would find the same hit again.
    if (hit)
        findVerseRow(*hit);
    try {
        DoColor();
    } catch (const Error& error) {
        textSearchFailed(error);
        return;
    }
    SettingCombos = On;
    showNormalPointer();
    setCaption(LongCaption);
}

void frmHolyTextFind::textSearchFailed(const Error& error) {
    MsgBox(
        u"Error in Text Search: "_s + u"\n\n"_s + error.text(), MessageIcon::Information,
        u"Error"_s);
    showNormalPointer();
    cmdHolyTextFind(Close).setValue(true);
}

// Whatever fails on the way, the window closes.
void frmHolyTextFind::leave() {
    auto& main = form<frmMain>();
    showHourglass();
    QueryLock = Off;
    SettingCombos = Off;
    attempt([] { OpenBibleTable(); });
    attempt([this] { rsBible.Seek(u"="_s, LastBook, LastChapter, LastVerse); });
    InQuery = Off;
    main.enableLists(true);
    HoldUpdates = On;
    main.SyncCombosToCursor();
    HoldUpdates = Off;
    attempt([&] { main.UpDateBibleText(true); });
    Unload();
    showNormalPointer();
}

void frmHolyTextFind::Form_Unload() {
    SettingCombos = Off;
    attempt([this] { form<frmMain>().cmbTestament.setListIndex(SavedTestament); });
}

void frmHolyTextFind::cboBook_Click() {
    bookScopeChosen(cboBook, cboTestament);
    Repositioned = false;
}

void frmHolyTextFind::cboTestament_Click() {
    testamentScopeChosen(cboTestament, cboBook);
    Repositioned = false;
}

void frmHolyTextFind::cmdHelp_Click() {
    ShowHelp(u"1720"_s);
}

void frmHolyTextFind::Form_MouseMove() {
    if (Caption() != u"Advanced Search")
        setCaption(u"Advanced Search"_s);
}

void frmHolyTextFind::mouseMoveEvent(QMouseEvent* event) {
    Form::mouseMoveEvent(event);
    runHandler([this] { Form_MouseMove(); });
}
