// The hits of a query as a list of references and texts, from the cursor on; choosing a line jumps
// there. The window lives for one list: after a jump it is gone.
#pragma once

#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/ListBox.h"
#include "controls/TextBox.h"

#include <QVariant>
#include <array>

class frmIndex final : public Form {
    Q_OBJECT

public:
    frmIndex();

    ListBox lstIndex{this, {u"lstIndex", {}, u"Double Click here to jump to a verse"}};
    MultilineTextBox txtIndex{this, {u"txtIndex", u"Chosen verse"}};
    ControlArray<CommandButton> CmdIndex; // exit, go to verse
    CommandButton cmdHelp{this, {u"cmdHelp", u"&Help", u"Tool Overview"}};

    // The verses of the lines, from entry 1 on: entry i belongs to line i - 1.
    static constexpr size_t RowCount = 501;
    std::array<qint16, RowCount> IndexID{};
    std::array<QVariant, RowCount> IndexBook;
    std::array<QVariant, RowCount> IndexChapter;
    std::array<QVariant, RowCount> IndexVerse;

    // Shows the list in the user's font of the index.
    void Screensetup();

    // Fills the list; the window unloads where a page shows as much as the list would.
    void GetData();

    void lstIndex_Click();
    void lstIndex_DblClick() const;
    void lstIndex_KeyPress(int& KeyAscii) const;
    void txtIndex_KeyPress(int& KeyAscii);
    void CmdIndex_Click(int Index);
    void cmdHelp_Click();

protected:
    void Form_Load() override;
    CommandButton* closingButton() override { return &CmdIndex(0); }

private:
    void layOut();
    void offerQuery();
    void addLines(int& Count);
    void addLine(size_t row);
    void showProgress(size_t row);
    void refuse(const QString& reason);
    void goToVerse();
    void jumpTo(int line);
};
