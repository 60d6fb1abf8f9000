#include "search/frmNoteSearch.h"

#include "basic/Conversion.h"
#include "basic/Error.h"
#include "basic/Text.h"
#include "controls/ButtonRow.h"
#include "core/GlobalCode.h"
#include "core/ModCode.h"
#include "desktop/Desktop.h"
#include "reader/VerseRow.h"
#include "reader/frmMain.h"
#include "search/ControlTable.h"
#include "search/WindowPlace.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 12;
constexpr int Spacing = 8;
constexpr int CharactersInLine = 56;

enum Button { FindFirst, Close, FindNext, FindPrevious };

constexpr ControlRow buttons[] = {
    {FindFirst, u"Find &First", u"Find first note with this text"},
    {Close, u"&Close"},
    {FindNext, u"Find &Next", u"Find next note with this text"},
    {FindPrevious, u"Find &Previous", u"Find previous note with this text"},
};

// Puts the cursor back on a row, whichever kind of cursor it is by now.
void returnTo(const std::optional<VerseRow>& row) {
    if (row && !seekVerseRow(*row))
        findVerseRow(*row);
}

} // namespace

frmNoteSearch::frmNoteSearch()
    : Form(u"frmNoteSearch"_s) {
    setCaption(u"Search Notes"_s);
    addControls(cmdNoteSearch, *this, u"cmdNoteSearch"_s, buttons);
    layOut();
    on(cmdNoteSearch, &CommandButton::Click, this, &frmNoteSearch::cmdNoteSearch_Click);
    on(cmdHelp, &CommandButton::Click, this, &frmNoteSearch::cmdHelp_Click);
    setDefaultButton(*this, cmdNoteSearch(FindNext));
}

void frmNoteSearch::layOut() {
    auto* what = new QHBoxLayout;
    what->setSpacing(Spacing);
    what->addWidget(&lblNoteSearch);
    what->addWidget(&txtNoteSearch, 1);
    lblNoteSearch.setBuddy(&txtNoteSearch);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(Spacing);
    column->addLayout(what);
    column->addStretch();
    auto* row = new ButtonRow(&cmdNoteSearch(FindNext), &cmdNoteSearch(Close));
    row->addOther(cmdNoteSearch(FindFirst));
    row->addOther(cmdNoteSearch(FindPrevious));
    row->addButton(&cmdHelp, ButtonRow::HelpRole);
    column->addWidget(row);
    QWidget* const order[] = {
        &txtNoteSearch,
        &cmdNoteSearch(FindNext),
        &cmdNoteSearch(FindFirst),
        &cmdNoteSearch(FindPrevious),
        &cmdNoteSearch(Close),
        &cmdHelp};
    for (size_t place = 1; place < std::size(order); ++place)
        setTabOrder(order[place - 1], order[place]);
    setMinimumWidth(fontMetrics().averageCharWidth() * CharactersInLine);
}

void frmNoteSearch::Form_Load() {
    m_refused = InQuery == On;
    if (m_refused) {
        MsgBox(
            u"In a query you can't use the Notes Searcher. Press Ctrl+J to end the Query."_s,
            MessageIcon::Information, u"Can't Use Tool"_s);
        Unload();
        return;
    }
    placeInCorner(*this);
}

// A window that has refused leaves the cursor of the query alone. Without a press there is no
// position to seek, and the cursor stays where it was.
void frmNoteSearch::Form_Unload() {
    if (m_refused)
        return;
    const std::optional<VerseRow> before = currentVerseRow();
    attempt([] { OpenBibleTable(); });
    bool found = false;
    attempt([&] {
        rsBible.Seek(u"="_s, NoteBook, NoteChapter, NoteVerse);
        found = !rsBible.NoMatch();
    });
    if (!found)
        returnTo(before);
    const std::optional<VerseRow> place = currentVerseRow();
    auto& main = form<frmMain>();
    attempt([&] { main.UpDateBibleText(true); });
    returnTo(place);
    main.txtFind.SetFocus();
}

void frmNoteSearch::cmdNoteSearch_Click(int Index) {
    try {
        press(Index);
    } catch (const Error& error) {
        MsgBox(u"Error in Note Search: "_s + error.text(), MessageIcon::Information, u"Error"_s);
        showNormalPointer();
        Unload();
        showPlace();
    }
}

void frmNoteSearch::press(int Index) {
    showHourglass();
    const QVariant id = rsBible.Fields(0).Value();
    NoteText = rsBible.Fields(4).Value();
    takePlace();
    OpenBibleDynaset();
    if (Index == Close) {
        Unload();
    } else {
        find(Index);
        if (rsBible.NoMatch())
            tellOfMiss(id);
    }
    showNormalPointer();
    showPlace();
}

void frmNoteSearch::takePlace() {
    NoteBook = rsBible.Fields(1).Value();
    NoteChapter = rsBible.Fields(2).Value();
    NoteVerse = rsBible.Fields(3).Value();
}

// From the verse that the press started on.
void frmNoteSearch::find(int Index) {
    const QString criteria = u"note like '*"_s + txtNoteSearch.Text() + u"*'"_s;
    rsBible.FindFirst(
        u"book = "_s + toText(NoteBook) + u" and chapter = "_s + toText(NoteChapter)
        + u" and verse = "_s + toText(NoteVerse));
    if (Index == FindFirst)
        rsBible.FindFirst(criteria);
    else if (Index == FindNext)
        rsBible.FindNext(criteria);
    else
        rsBible.FindPrevious(criteria);
    if (rsBible.NoMatch())
        return;
    takePlace();
    form<frmMain>().showPlaceInLists();
}

void frmNoteSearch::tellOfMiss(const QVariant& id) const {
    MsgBox(
        u"No more notes contain the text: "_s + txtNoteSearch.Text(), MessageIcon::Information,
        u"Notes"_s);
    rsBible.FindFirst(u"ID="_s + Trim(toText(id)));
}

// The page has rewound the cursor and filled the note pane from there; the next search, the heading
// and the pane want the note that was found.
void frmNoteSearch::showPlace() {
    auto& main = form<frmMain>();
    const std::optional<VerseRow> place = currentVerseRow();
    attempt([&] { main.UpDateBibleText(true); });
    returnTo(place);
    main.showNote();
    main.showTitle(u"] "_s);
    main.showNoteHeading();
}

void frmNoteSearch::cmdHelp_Click() {
    ShowHelp(u"13"_s);
}
