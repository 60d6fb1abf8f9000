#include "search/frmIndex.h"

#include "basic/Conversion.h"
#include "basic/DoEvents.h"
#include "basic/Error.h"
#include "basic/Text.h"
#include "controls/ButtonRow.h"
#include "core/BookNames.h"
#include "core/GlobalCode.h"
#include "core/ModCode.h"
#include "core/Settings.h"
#include "desktop/Desktop.h"
#include "reader/PageComposer.h"
#include "reader/frmMain.h"
#include "richtext/FontFamilies.h"
#include "search/ControlTable.h"
#include "search/frmQuery.h"
#include "search/frmWorking.h"

#include <QVBoxLayout>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 12;
constexpr int Spacing = 8;
constexpr int CharactersInLine = 90;
constexpr int LinesInList = 18;
constexpr int LinesOfVerse = 4;
constexpr int VersesOfBible = 31222;

enum Character { CopyCharacter = 3, EnterKey = 13, EscapeKey = 27 };
enum Button { Exit, GoToVerse };

constexpr ControlRow buttons[] = {
    {Exit, u"&Exit"}, {GoToVerse, u"Go To &Verse", u"Jump to the verse you have selected"}};

// How many lines the user wants; the last of them is never written.
double wantedLines() {
    if (NumIndexItems < 1)
        return 25;
    return NumIndexItems > 99 ? 100 : NumIndexItems;
}

QString referenceOf(const QVariant& book, const QVariant& chapter, const QVariant& verse) {
    return bookName(book) + u' ' + Trim(toText(chapter)) + u':' + Trim(toText(verse));
}

} // namespace

frmIndex::frmIndex()
    : Form(u"frmIndex"_s) {
    setCaption(u"Index of verses"_s);
    addControls(CmdIndex, *this, u"CmdIndex"_s, buttons);
    layOut();
    on(lstIndex, &ListBox::Click, this, &frmIndex::lstIndex_Click);
    on(lstIndex, &ListBox::DblClick, this, &frmIndex::lstIndex_DblClick);
    on(lstIndex, &ListBox::KeyPress, this, &frmIndex::lstIndex_KeyPress);
    on(txtIndex, &MultilineTextBox::KeyPress, this, &frmIndex::txtIndex_KeyPress);
    on(CmdIndex, &CommandButton::Click, this, &frmIndex::CmdIndex_Click);
    on(cmdHelp, &CommandButton::Click, this, &frmIndex::cmdHelp_Click);
}

void frmIndex::layOut() {
    lstIndex.setAccessibleName(u"Verses of the query"_s);
    txtIndex.setReadOnly(true);
    auto* row = new ButtonRow(&CmdIndex(GoToVerse), &CmdIndex(Exit));
    row->addButton(&cmdHelp, ButtonRow::HelpRole);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(Spacing);
    column->addWidget(&lstIndex, 1);
    column->addWidget(&txtIndex);
    column->addWidget(row);
    QWidget* const order[] = {
        &lstIndex, &txtIndex, &CmdIndex(GoToVerse), &CmdIndex(Exit), &cmdHelp};
    for (size_t place = 1; place < std::size(order); ++place)
        setTabOrder(order[place - 1], order[place]);
}

void frmIndex::Form_Load() {
    if (InQuery == Off) {
        offerQuery();
        return;
    }
    Screensetup();
    GetData();
}

void frmIndex::offerQuery() {
    const Answer answer = MsgBox(
        u"The Index tool is used to see the results of a Query in a Quick Pick List. \n\r\n\r"
        u"Show the Querying Tool?"_s,
        MessageIcon::Question, u"Index Tool"_s, MessageButtons::YesNo);
    Unload();
    if (answer == Answer::Yes)
        form<frmQuery>().ShowModal();
}

void frmIndex::Screensetup() {
    QFont font = lstIndex.font();
    font.setFamily(availableFamily(IndexFontName));
    if (isFontSize(IndexFontSize))
        font.setPointSizeF(IndexFontSize);
    font.setBold(IndexBold != 0);
    font.setUnderline(IndexUnderline != 0);
    font.setItalic(IndexItalic != 0);
    lstIndex.setFont(font);
    const QFontMetrics own = fontMetrics();
    txtIndex.setFixedHeight(own.lineSpacing() * LinesOfVerse + 2 * Spacing);
    resize(
        own.averageCharWidth() * CharactersInLine,
        own.lineSpacing() * (LinesInList + LinesOfVerse + 4));
}

// The walk runs off the last hit where there are fewer hits than wanted lines.
void frmIndex::GetData() {
    int Count = 1;
    QString reason;
    try {
        auto& working = form<frmWorking>();
        working.Show();
        working.lblWorking.setCaption(u"Now building index"_s);
        DoEvents();
        form<frmMain>().showHourglass();
        addLines(Count);
        reason =
            u"There is no need to run the Index tool because the number of verses found is less than what you can see on the screen."_s;
    } catch (const Error&) {
        reason =
            u"There is no need to run the Index tool because all the verses found in your Query can be seen on the screen."_s;
    }
    form<frmWorking>().Unload();
    form<frmMain>().showNormalPointer();
    if (Count < VersesPerPage)
        refuse(reason);
}

void frmIndex::addLines(int& Count) {
    const double wanted = wantedLines();
    while (Count <= wanted) {
        const auto row = static_cast<size_t>(Count);
        addLine(row);
        ++Count;
        if (rsBible.Eof()) {
            rsBible.MoveFirst();
            break;
        }
        if (Count >= wanted)
            break;
        showProgress(row);
        DoEvents();
        rsBible.MoveNext();
    }
}

void frmIndex::addLine(size_t row) {
    const QString text = RedLetterText(toText(rsBible.Fields(4).Value()), false);
    IndexID[row] = toInt16(toNumber(rsBible.Fields(0).Value()));
    IndexBook[row] = rsBible.Fields(1).Value();
    IndexChapter[row] = rsBible.Fields(2).Value();
    IndexVerse[row] = rsBible.Fields(3).Value();
    lstIndex.AddItem(referenceOf(IndexBook[row], IndexChapter[row], IndexVerse[row]) + u' ' + text);
}

void frmIndex::showProgress(size_t row) {
    auto& working = form<frmWorking>();
    working.lblWorking.setCaption(
        u"Adding: "_s + referenceOf(IndexBook[row], IndexChapter[row], IndexVerse[row]));
    working.pbWorking.setValue(std::clamp(IndexID[row] * 100 / VersesOfBible, 0, 100));
}

void frmIndex::refuse(const QString& reason) {
    MsgBox(reason, MessageIcon::Information, u"Index list not needed"_s);
    Unload();
}

void frmIndex::lstIndex_Click() {
    txtIndex.setText(lstIndex.Text());
}

void frmIndex::lstIndex_DblClick() const {
    CmdIndex(GoToVerse).setValue(true);
}

void frmIndex::lstIndex_KeyPress(int& KeyAscii) const {
    if (KeyAscii != EnterKey)
        return;
    KeyAscii = 0;
    if (lstIndex.ListIndex() < 0)
        MsgBox(
            u"Please click on the page you would like to go to first."_s, MessageIcon::Information,
            u"Index"_s);
    else
        lstIndex_DblClick();
}

// Nothing can be typed, but the text can be copied and the window closed.
void frmIndex::txtIndex_KeyPress(int& KeyAscii) {
    if (KeyAscii != CopyCharacter && KeyAscii != EscapeKey)
        KeyAscii = 0;
}

void frmIndex::CmdIndex_Click(int Index) {
    if (Index == Exit) {
        Unload();
        form<frmMain>().Show();
        return;
    }
    try {
        goToVerse();
    } catch (const Error& error) {
        MsgBox(
            u"Error in Getting Index Item: "_s + u"\r\n"_s + error.text(),
            MessageIcon::Information);
    }
}

void frmIndex::goToVerse() {
    const int line = lstIndex.ListIndex();
    if (line < 0) {
        MsgBox(
            u"Please click on the verse you would like to go to first."_s, MessageIcon::Information,
            u"Need a Verse"_s);
        return;
    }
    jumpTo(line);
    auto& main = form<frmMain>();
    HoldUpdates = On;
    main.showPlaceInLists();
    HoldUpdates = Off;
    main.txtMain.SetFocus();
    Unload();
    DoEvents();
    main.UpDateBibleText(true);
}

// After End Query the window may still be open; its first line then stands for where the reader is.
void frmIndex::jumpTo(int line) {
    const auto row = static_cast<size_t>(line) + 1;
    if (InQuery == On)
        rsBible.FindFirst(u"ID ="_s + Str(IndexID[row]));
    else if (line > 0)
        rsBible.Seek(u"="_s, IndexBook[row], IndexChapter[row], IndexVerse[row]);
}

void frmIndex::cmdHelp_Click() {
    ShowHelp(u"15"_s);
}
