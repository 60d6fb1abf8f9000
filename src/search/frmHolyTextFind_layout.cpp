// The controls of the advanced search and their layout.
#include "controls/ButtonRow.h"
#include "search/ControlTable.h"
#include "search/frmHolyTextFind.h"

#include <QFormLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 12;
constexpr int Spacing = 8;
constexpr int CharactersInLine = 52;

enum Button { FindFirst, Close, Query, FindNext, FindPrevious };

constexpr ControlRow buttonRows[] = {
    {FindFirst, u"&Find First", u"Find First occurance of a word"},
    {Close, u"&Close"},
    {Query, u"&Query"},
    {FindNext, u"Find &Next", u"Find the next occurance"},
    {FindPrevious, u"Find &Previous", u"Find a previous occurance"}};

// Their labels are the accessible names of the boxes.
constexpr ControlRow wordRows[] = {{0, u"First Word"}, {1, u"Second Word (Optional)"}};
constexpr ControlRow optionRows[] = {
    {0, u"Find verses with BOTH words"}, {1, u"Find verses with EITHER words"}};
constexpr ControlRow scopeLabels[] = {{0, u"Testament"}, {1}, {2, u"Book"}};

} // namespace

frmHolyTextFind::frmHolyTextFind()
    : Form(u"frmHolyTextFind"_s) {
    setCaption(u"Advanced Search of Verses"_s);
    setMouseTracking(true);
    makeControls();
    layOut();
    orderFocus();
    wireControls();
    setDefaultButton(*this, cmdHolyTextFind(FindNext));
}

void frmHolyTextFind::makeControls() {
    addControls(txtFind, fraFind, u"txtFind"_s, wordRows);
    addControls(optAndOr, fraFind, u"optAndOr"_s, optionRows);
    optAndOr(1).setValue(true);
    addControls(lblFindWhat, fraScope, u"lblFindWhat"_s, scopeLabels);
    lblFindWhat(1).setVisible(false);
    addControls(cmdHolyTextFind, *this, u"cmdHolyTextFind"_s, buttonRows);
    cmdHolyTextFind(FindFirst).setVisible(false);
    cmdHolyTextFind(Query).setVisible(false);
    cboTestament.AddItems(
        {u"Choose a Book"_s, u"Search entire Old Testament ONLY"_s,
         u"Search entire New Testament ONLY"_s});
}

void frmHolyTextFind::layOut() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(Spacing);
    layOutWords();
    layOutScope();
    column->addWidget(&fraFind);
    column->addWidget(&fraScope);
    column->addStretch();
    auto* buttons = new ButtonRow(&cmdHolyTextFind(FindNext), &cmdHolyTextFind(Close));
    buttons->addOther(cmdHolyTextFind(FindPrevious));
    buttons->addButton(&cmdHelp, ButtonRow::HelpRole);
    column->addWidget(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * CharactersInLine);
}

void frmHolyTextFind::layOutWords() {
    auto* words = new QFormLayout(&fraFind);
    words->setSpacing(Spacing);
    words->addRow(&Label1, &txtFind(0));
    words->addRow(&Label2, &txtFind(1));
    words->addRow(QString(), &optAndOr(0));
    words->addRow(QString(), &optAndOr(1));
}

void frmHolyTextFind::layOutScope() {
    auto* scope = new QFormLayout(&fraScope);
    scope->setSpacing(Spacing);
    scope->addRow(&lblFindWhat(0), &cboTestament);
    scope->addRow(&lblFindWhat(2), &cboBook);
    scope->addRow(QString(), &chkMatchWholeWord);
}

// The members of arrays are made after the others.
void frmHolyTextFind::orderFocus() {
    QWidget* last = &txtFind(0);
    for (QWidget* next : std::initializer_list<QWidget*>{
             &txtFind(1), &optAndOr(0), &optAndOr(1), &cboTestament, &cboBook, &chkMatchWholeWord,
             &cmdHolyTextFind(FindNext), &cmdHolyTextFind(FindPrevious), &cmdHolyTextFind(Close),
             &cmdHelp}) {
        setTabOrder(last, next);
        last = next;
    }
}

void frmHolyTextFind::wireControls() {
    on(cmdHolyTextFind, &CommandButton::Click, this, &frmHolyTextFind::cmdHolyTextFind_Click);
    on(cboBook, &ComboBox::Click, this, &frmHolyTextFind::cboBook_Click);
    on(cboTestament, &ComboBox::Click, this, &frmHolyTextFind::cboTestament_Click);
    on(cmdHelp, &CommandButton::Click, this, &frmHolyTextFind::cmdHelp_Click);
    on(fraFind, &Frame::MouseMove, this, &frmHolyTextFind::fraFind_MouseMove);
}
