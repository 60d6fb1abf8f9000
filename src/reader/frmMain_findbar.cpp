// The find bar: one word, the whole Bible, from the verse under the cursor on.
#include "basic/Conversion.h"
#include "basic/Error.h"
#include "basic/Text.h"
#include "core/GlobalCode.h"
#include "desktop/Desktop.h"
#include "reader/frmMain.h"
#include "study/History.h"

using namespace Qt::StringLiterals;

namespace {

// Finds need a dynaset; it shall stand where the reader stands.
void openDynasetOn(const std::optional<VerseRow>& row) {
    attempt([] { OpenBibleDynaset(); });
    attempt([&] {
        if (row)
            rsBible.FindFirst(u"ID = "_s + Str(toNumber(row->id)));
    });
}

// Whether the text could be searched for at all: a quote in it spoils the criteria.
bool searchOn(bool forward, const QString& text) {
    return attempt([&] {
        const QString criteria = u"Body like '*"_s + text + u"*'"_s;
        if (forward)
            rsBible.FindNext(criteria);
        else
            rsBible.FindPrevious(criteria);
    });
}

void tellOfMiss(bool forward, const QString& text) {
    if (forward)
        MsgBox(
            u"After the current verse no other contained the text: \n"_s + text,
            MessageIcon::Information, u"Not Found"_s);
    else
        MsgBox(
            u"Prior to the current verse no other contained the text: \n"_s + text,
            MessageIcon::Information, u"No More Found"_s);
}

} // namespace

void frmMain::findnextbutton() {
    findFromCursor(true);
}

void frmMain::FindPreviousButton() {
    findFromCursor(false);
}

// Between two presses the program is back on the table cursor, so that the reader can move freely.
void frmMain::findFromCursor(bool forward) {
    const QString text = txtFind.Text();
    if (text.isEmpty()) {
        MsgBox(u"Please enter some text to look for."_s, MessageIcon::Information, u"Need Text"_s);
        txtFind.SetFocus();
        return;
    }
    showHourglass();
    std::optional<VerseRow> place = currentVerseRow();
    openDynasetOn(place);
    setCaption(u"Searching for "_s + text);
    bool found = searchOn(forward, text);
    if (found && rsBible.NoMatch()) {
        found = false;
        showNormalPointer();
        tellOfMiss(forward, text);
    }
    if (found) {
        place = currentVerseRow();
        attempt([this] { UpDateBibleText(true); });
    }
    HoldUpdates = On;
    attempt([] { OpenBibleTable(); });
    if (place)
        seekVerseRow(*place);
    if (found) {
        SyncCombosToCursor();
        // The page has filled the note pane from the row that it rewound to.
        showNote();
    }
    showNormalPointer();
    HoldUpdates = Off;
    if (found)
        AddToHistory();
}
