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

// Null where the verse never had a note; nothing where the row cannot be read.
std::optional<QVariant> storedNote() {
    std::optional<QVariant> note;
    attempt([&] { note = rsBible.Fields(NoteField).Value(); });
    return note;
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

// The note of the row now under the cursor. The box is never quite empty, and there is nothing of
// another verse to be undone in it.
void frmMain::showNote() {
    keepUnsavedNote();
    m_loadedNote = storedNote().value_or(QVariant());
    QString note = u" "_s;
    attempt([&] {
        if (isNull(m_loadedNote))
            return;
        note = toText(m_loadedNote);
        if (note.size() < 2)
            note += u' ';
    });
    fillNote(note);
    txtNote.document()->clearUndoRedoStacks();
    m_noteRow = currentVerseRow();
    m_noteUnsaved = false;
    m_noteWriteFailed = false;
}

// The cursor has left the row that filled the pane. A row that cannot be read for a moment is no
// other row.
bool frmMain::isOnAnotherRow() const {
    const std::optional<VerseRow> row = currentVerseRow();
    return row ? row != m_noteRow : !m_noteRow;
}

// The pane belongs to the row that filled it: on another row nothing is written, or one verse's
// note would take the place of another's.
void frmMain::WriteNote() {
    const std::optional<QVariant> stored = storedNote();
    const bool changedElsewhere = !m_noteUnsaved && stored && *stored != m_loadedNote;
    if (isOnAnotherRow() || changedElsewhere) {
        showNote();
        return;
    }
    if (Trim(txtNote.Text()).isEmpty())
        fillNote(noteToStore());
    const QString note = noteToStore();
    // After a failed write the row shows what was assigned to it, and not what the file holds.
    if (!m_noteWriteFailed && stored && !isNull(*stored) && stored->toString() == note)
        m_noteUnsaved = false;
    else
        m_noteUnsaved = m_noteWriteFailed = !store(note);
    if (!m_noteUnsaved)
        m_loadedNote = note;
}

// An erased note is one blank.
QString frmMain::noteToStore() const {
    return Trim(txtNote.Text()).isEmpty() ? u" "_s : txtNote.Text();
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
    if (!storeNote(*m_noteRow, noteToStore()))
        rescueNote(*m_noteRow, noteToStore());
}

void frmMain::txtNote_GotFocus() {
    setKeyPreview(false);
    MainHasFocus = false;
    NoteHasFocus = true;
    FindHasFocus = false;
    refreshNote();
}

void frmMain::refreshNote() {
    if (isOnAnotherRow())
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
