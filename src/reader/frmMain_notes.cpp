// The note of the verse under the cursor: shown with each page, written on each release of a key.
#include "basic/Conversion.h"
#include "basic/Error.h"
#include "basic/Text.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "reader/RescuedNotes.h"
#include "reader/frmMain.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int NoteField = 5;
constexpr int SelectAllCharacter = 1; // what Ctrl+A types

bool isStored(const QString& note) {
    bool stored = false;
    attempt([&] {
        const QVariant value = rsBible.Fields(NoteField).Value();
        stored = !isNull(value) && toText(value) == note;
    });
    return stored;
}

bool store(const QString& note) {
    return attempt([&] {
        rsBible.Edit();
        rsBible.Fields(NoteField) = note;
        rsBible.Update();
    });
}

} // namespace

void frmMain::showNoteHeading() {
    lblCurrentNote.setCaption(u"Your note for: "_s + VerseReference());
}

// The note of the row now under the cursor. The box is never quite empty.
void frmMain::showNote() {
    keepUnsavedNote();
    QString note = u" "_s;
    attempt([&] {
        const QVariant stored = rsBible.Fields(NoteField).Value();
        if (isNull(stored))
            return;
        note = toText(stored);
        if (note.size() < 2)
            note += u' ';
    });
    fillNote(note);
    m_noteRow = currentVerseRow();
}

// The pane belongs to the row that filled it: on another row nothing is written, or one verse's
// note would take the place of another's.
void frmMain::WriteNote() {
    const std::optional<VerseRow> row = currentVerseRow();
    if (!row || row != m_noteRow) {
        showNote();
        return;
    }
    if (Trim(txtNote.Text()).isEmpty())
        fillNote(Trim(txtNote.Text()) + u' ');
    const QString note = txtNote.Text();
    m_noteUnsaved = !isStored(note) && !store(note);
}

void frmMain::fillNote(const QString& note) {
    m_fillingNote = true;
    txtNote.setText(note);
    m_fillingNote = false;
}

// What was typed and could not be written in its time gets a last chance, and then a place of its
// own, before the pane is filled with another note.
void frmMain::keepUnsavedNote() {
    if (!m_noteUnsaved || !m_noteRow)
        return;
    m_noteUnsaved = false;
    if (!storeNote(*m_noteRow, txtNote.Text()))
        rescueNote(*m_noteRow, txtNote.Text());
}

void frmMain::txtNote_GotFocus() {
    setKeyPreview(false);
    MainHasFocus = false;
    NoteHasFocus = true;
    FindHasFocus = false;
    if (currentVerseRow() != m_noteRow)
        showNote();
}

void frmMain::txtNote_KeyPress(int& KeyAscii) {
    if (KeyAscii != SelectAllCharacter)
        return;
    txtNote.selectAll();
    KeyAscii = 0;
}

void frmMain::txtNote_KeyUp() {
    WriteNote();
}

void frmMain::txtNote_LostFocus() {
    setKeyPreview(true);
    writePendingNote();
}

// Text that comes by the mouse has no key whose release would write it.
void frmMain::txtNote_Change() {
    if (m_fillingNote)
        return;
    m_noteUnsaved = true;
    if (!txtNote.isKeyPressed())
        WriteNote();
}

void frmMain::writePendingNote() {
    if (m_noteUnsaved)
        WriteNote();
}
