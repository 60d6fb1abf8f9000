#include "search/frmSimpleFind.h"

#include "basic/DoEvents.h"
#include "basic/Error.h"
#include "basic/Text.h"
#include "controls/ButtonRow.h"
#include "core/GlobalCode.h"
#include "core/ModCode.h"
#include "desktop/Desktop.h"
#include "reader/frmMain.h"
#include "search/ControlTable.h"
#include "search/SearchCriteria.h"
#include "search/SearchScope.h"
#include "search/WindowPlace.h"

#include <QFormLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 12;
constexpr int Spacing = 8;
constexpr int CharactersInLine = 48;
constexpr qsizetype LeastLength = 2;

const QString LongCaption = u"Simple Search of Verses"_s;

enum Find { FindFirst, FindNext, FindPrevious, Close };

constexpr ControlRow buttonRows[] = {
    {FindFirst, u"&Find First", u"Find first verse with this text"},
    {FindNext, u"Find &Next", u"Find next verse with this text"},
    {FindPrevious, u"Find &Previous", u"Find previous verse with this text"},
    {Close, u"&Close"}};
constexpr ControlRow scopeLabels[] = {{0, u"Testament"}, {1}, {2, u"Book"}};

} // namespace

frmSimpleFind::frmSimpleFind()
    : Form(u"frmSimpleFind"_s) {
    setCaption(LongCaption);
    layOut();
    wireControls();
    setDefaultButton(*this, cmdFind(FindNext));
}

void frmSimpleFind::layOut() {
    auto* what = new QVBoxLayout(&fraMain);
    what->setSpacing(Spacing);
    what->addWidget(&txtFind);
    what->addWidget(&chkMatchWholeWord);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(Spacing);
    column->addWidget(&fraMain);
    column->addWidget(&fraScope);
    column->addStretch();
    layOutScope();
    layOutButtons();
    setMinimumWidth(fontMetrics().averageCharWidth() * CharactersInLine);
}

void frmSimpleFind::layOutScope() {
    addControls(lblFindWhat, fraScope, u"lblFindWhat"_s, scopeLabels);
    lblFindWhat(1).setVisible(false);
    auto* scope = new QFormLayout(&fraScope);
    scope->setSpacing(Spacing);
    scope->addRow(&lblFindWhat(0), &cboTestament);
    scope->addRow(&lblFindWhat(2), &cboBook);
    cboTestament.AddItems(
        {u"Search Both New and Old"_s, u"Search Old Testament ONLY"_s,
         u"Search New Testament ONLY"_s});
}

void frmSimpleFind::layOutButtons() {
    addControls(cmdFind, *this, u"cmdFind"_s, buttonRows);
    cmdFind(FindFirst).setVisible(false);
    auto* buttons = new ButtonRow(&cmdFind(FindNext), &cmdFind(Close));
    buttons->addOther(cmdFind(FindPrevious));
    buttons->addButton(&cmdHelp, ButtonRow::HelpRole);
    layout()->addWidget(buttons);
    // The members of the array are made after the others.
    setTabOrder(&cboBook, &cmdFind(FindNext));
    setTabOrder(&cmdFind(FindNext), &cmdFind(FindPrevious));
    setTabOrder(&cmdFind(FindPrevious), &cmdFind(Close));
    setTabOrder(&cmdFind(Close), &cmdHelp);
}

void frmSimpleFind::wireControls() {
    on(cmdFind, &CommandButton::Click, this, &frmSimpleFind::cmdFind_Click);
    on(cboBook, &ComboBox::Click, this, &frmSimpleFind::cboBook_Click);
    on(cboTestament, &ComboBox::Click, this, &frmSimpleFind::cboTestament_Click);
    on(cmdHelp, &CommandButton::Click, this, &frmSimpleFind::cmdHelp_Click);
}

void frmSimpleFind::Form_Load() {
    const QString text = form<frmMain>().txtFind.Text();
    if (text.size() >= LeastLength) {
        txtFind.setText(text);
        txtFind.selectAll();
    }
    cboTestament.setListIndex(0);
    fillBookScope(cboBook, u"Any"_s);
    Repositioned = false;
    attempt([] { OpenBibleDynaset(); });
    placeInCorner(*this);
}

QString frmSimpleFind::MakeSimpleSQL() const {
    const QString word = txtFind.Text();
    QString criteria =
        chkMatchWholeWord.Value()
            ? u" ((body like "_s + wholeWordPatterns(word, u".:;,"_s, u") or (body like "_s)
            : u" (( body like "_s + anywherePattern(word);
    criteria += u"))"_s;
    if (cboBook.ListIndex() > 0)
        criteria += u" AND (book = "_s + Trim(Str(cboBook.ListIndex())) + u')';
    if (cboTestament.ListIndex() == 1)
        criteria += u" AND (book < 40)"_s;
    else if (cboTestament.ListIndex() > 0)
        criteria += u" AND (book > 39)"_s;
    return criteria;
}

void frmSimpleFind::DoReposition() {
    if (Repositioned)
        return;
    Repositioned = true;
    setCaption(u"Moving to new Book"_s);
    rsBible.FindFirst(scopeStart(cboTestament.ListIndex(), cboBook.ListIndex()));
}

void frmSimpleFind::startFind() {
    showHourglass();
    setCaption(u"Searching for "_s + txtFind.Text());
}

// Starts behind the first verse of the scope, which is thus never found.
void frmSimpleFind::findFirstbutton() {
    startFind();
    if (cboTestament.ListIndex() == 2)
        rsBible.FindFirst(u"book = 40"_s);
    if (cboBook.ListIndex() >= 1)
        rsBible.FindFirst(u"book = "_s + Trim(Str(cboBook.ListIndex())));
    rsBible.FindNext(MakeSimpleSQL());
    if (rsBible.NoMatch()) {
        showNormalPointer();
        MsgBox(u"There were no verses found."_s, MessageIcon::Question, u"Not Found"_s);
    }
    showNormalPointer();
}

void frmSimpleFind::findnextbutton() {
    startFind();
    rsBible.FindNext(MakeSimpleSQL());
    if (rsBible.NoMatch())
        offerBeginning();
    showNormalPointer();
}

void frmSimpleFind::offerBeginning() {
    showNormalPointer();
    const Answer answer = MsgBox(
        u"After the current verse no verses were found.\r\n\r\n"
        u"Would you like to search from the beginning of the Bible (Genesis)?"_s,
        MessageIcon::Question, u"Not Found"_s, MessageButtons::YesNo);
    if (answer != Answer::Yes)
        return;
    setCaption(u"Moving to Genesis"_s);
    cboBook.setListIndex(0);
    rsBible.FindFirst(FirstVerseCriteria);
    setCaption(LongCaption);
    MsgBox(
        u"The current verse is now at the beginning of the Bible. Press Find Next to continue."_s,
        MessageIcon::Information, u""_s);
}

// Does not go on from the end of the Bible, unlike its twin.
void frmSimpleFind::FindPreviousButton() {
    startFind();
    rsBible.FindPrevious(MakeSimpleSQL());
    if (rsBible.NoMatch()) {
        showNormalPointer();
        MsgBox(
            u"Prior to the current verse no other contained the text: \n"_s + txtFind.Text(),
            MessageIcon::Information, u"No More Found"_s);
    }
    showNormalPointer();
}

void frmSimpleFind::cmdFind_Click(int Index) {
    if (Index == Close)
        leave();
    else
        search(Index);
}

// The reading position after the search is what the lists show.
void frmSimpleFind::leave() {
    auto& main = form<frmMain>();
    main.txtFind.SetFocus();
    attempt([] { OpenBibleTable(); });
    attempt([&] {
        rsBible.Seek(
            u"="_s, main.cboBook.ListIndex() + 1, Val(main.cboChapter.Text()),
            Val(main.cboVerse.Text()));
    });
    attempt([&] { main.UpDateBibleText(true); });
    main.cmdMain(6).setValue(true);
    Unload();
}

// Ends without a message where the word spoils the criteria.
void frmSimpleFind::search(int Index) {
    if (txtFind.Text().size() < LeastLength) {
        MsgBox(
            u"Please enter some text to search for."_s, MessageIcon::Information, u"Need Text"_s);
        txtFind.SetFocus();
        return;
    }
    setCaption(u"Working..."_s);
    DoEvents();
    form<frmMain>().txtFind.setText(txtFind.Text());
    attempt([this] { DoReposition(); });
    bool found = attempt([&] {
        if (Index == FindFirst)
            findFirstbutton();
        else if (Index == FindNext)
            findnextbutton();
        else
            FindPreviousButton();
    });
    setCaption(LongCaption);
    attempt([&] { found = found && !rsBible.NoMatch(); });
    if (found)
        form<frmMain>().showPlaceInLists();
    showNormalPointer();
}

void frmSimpleFind::cboBook_Click() {
    bookScopeChosen(cboBook, cboTestament);
    Repositioned = false;
}

void frmSimpleFind::cboTestament_Click() {
    testamentScopeChosen(cboTestament, cboBook);
    Repositioned = false;
}

void frmSimpleFind::cmdHelp_Click() {
    ShowHelp(u"12"_s);
}

void frmSimpleFind::Form_Deactivate() {
    Unload();
    attempt([] { form<frmMain>().UpDateBibleText(true); });
}
