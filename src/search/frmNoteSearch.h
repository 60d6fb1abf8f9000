// The search in the user's notes: verse by verse, and the page follows each hit.
#pragma once

#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/TextBox.h"

#include <QVariant>

class frmNoteSearch final : public Form {
    Q_OBJECT

public:
    frmNoteSearch();

    Label lblNoteSearch{this, {u"lblNoteSearch", u"Find what:"}};
    TextBox txtNoteSearch{this, {u"txtNoteSearch", u"Find what:"}};
    ControlArray<CommandButton> cmdNoteSearch; // first, close, next, previous
    CommandButton cmdHelp{this, {u"cmdHelp", u"&Help", u"Tool Overview"}};

    // The reading position: where the last press started, then the last note found.
    QVariant NoteBook;
    QVariant NoteChapter;
    QVariant NoteVerse;

    // The text of the verse on which the last press started.
    QVariant NoteText;

    void cmdNoteSearch_Click(int Index);
    void cmdHelp_Click();

protected:
    void Form_Load() override;
    void Form_Unload() override;
    CommandButton* closingButton() override { return &cmdNoteSearch(1); }

private:
    void layOut();
    void press(int Index);
    void find(int Index);
    void takePlace();
    void tellOfMiss(const QVariant& id) const;
    void showPlace();

    bool m_refused = false;
};
