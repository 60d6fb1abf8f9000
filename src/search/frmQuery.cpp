#include "search/frmQuery.h"

#include "basic/DoEvents.h"
#include "basic/Error.h"
#include "controls/ButtonRow.h"
#include "core/BookNames.h"
#include "core/GlobalCode.h"
#include "core/ModCode.h"
#include "desktop/Desktop.h"
#include "reader/frmMain.h"
#include "search/ControlTable.h"
#include "search/QueryText.h"

#include <QFormLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 12;
constexpr int Spacing = 8;
constexpr int CharactersInLine = 64;
constexpr qint16 Cancelled = 999;

enum Button { Ok = 0, ClearForm = 1, Cancel = 3 };
enum Scope { BothTestaments, OldTestament, NewTestament };

constexpr int LastBookOfOldTestament = 39;

// Their labels are the accessible names of the boxes.
constexpr ControlRow words[] = {{0, u"First Word"}, {1, u"Second Word (Optional)"}};
constexpr ControlRow options[] = {
    {0, u"Find verses with BOTH words"}, {1, u"Find verses with EITHER words"}};
constexpr ControlRow scopeLabels[] = {{0, u"Testament"}, {1}, {2, u"Book"}};
constexpr ControlRow buttons[] = {{Ok, u"&OK"}, {ClearForm, u"Clear &Form"}, {Cancel, u"&Cancel"}};

} // namespace

frmQuery::frmQuery()
    : Form(u"frmQuery"_s) {
    setCaption(u"Query Bible to view only certain verses"_s);
    addControls(txtQuery, famQuery, u"txtQuery"_s, words);
    addControls(optAndOr, famQuery, u"optAndOr"_s, options);
    addControls(lblFindWhat, famBooks, u"lblFindWhat"_s, scopeLabels);
    addControls(cmdQuery, *this, u"cmdQuery"_s, buttons);
    optAndOr(1).setValue(true);
    cmdQuery(ClearForm).setVisible(false);
    layOut();
    orderTabs();
    wireControls();
    setDefaultButton(*this, cmdQuery(Ok));
}

void frmQuery::layOut() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(Spacing);
    column->addWidget(&famQuery);
    column->addWidget(&famBooks);
    column->addStretch();
    auto* row = new ButtonRow(&cmdQuery(Ok), &cmdQuery(Cancel));
    row->addButton(&cmdHelp, ButtonRow::HelpRole);
    column->addWidget(row);
    layOutWords();
    layOutBooks();
    setMinimumWidth(fontMetrics().averageCharWidth() * CharactersInLine);
}

void frmQuery::layOutWords() {
    auto* rows = new QFormLayout(&famQuery);
    rows->setSpacing(Spacing);
    rows->addRow(&Label1, &txtQuery(0));
    rows->addRow(&Label2, &txtQuery(1));
    rows->addRow(QString(), &optAndOr(0));
    rows->addRow(QString(), &optAndOr(1));
    rows->addRow(QString(), &chkMatchCase);
}

void frmQuery::layOutBooks() {
    auto* rows = new QFormLayout(&famBooks);
    rows->setSpacing(Spacing);
    rows->addRow(&lblFindWhat(0), &cboScope);
    rows->addRow(&lblFindWhat(2), &cboBook);
    lblFindWhat(1).setVisible(false);
}

void frmQuery::orderTabs() {
    QWidget* const order[] = {&txtQuery(0),      &txtQuery(1), &optAndOr(0), &optAndOr(1),
                              &chkMatchCase,     &cboScope,    &cboBook,     &cmdQuery(Ok),
                              &cmdQuery(Cancel), &cmdHelp};
    for (size_t place = 1; place < std::size(order); ++place)
        setTabOrder(order[place - 1], order[place]);
}

void frmQuery::wireControls() {
    on(txtQuery, &TextBox::GotFocus, this, &frmQuery::txtQuery_GotFocus);
    on(cboScope, &ComboBox::Click, this, &frmQuery::cboScope_Click);
    on(cmdQuery, &CommandButton::Click, this, &frmQuery::cmdQuery_Click);
    on(cmdHelp, &CommandButton::Click, this, &frmQuery::cmdHelp_Click);
    // The user's picks alone; code that sets the list means no more than it says.
    connect(&cboBook, &QComboBox::activated, this, [this] {
        runHandler([this] { cboBook_Change(); });
    });
}

void frmQuery::Form_Load() {
    m_foundInQuery = InQuery;
    SettingCombos = Off;
    QueryLock = Off;
    InQuery = Off;
    SetupQueryForm();
    const int testament = form<frmMain>().cmbTestament.ListIndex();
    if (testament == 1)
        attempt([this] { cboScope.setListIndex(NewTestament); });
    else if (testament == 2)
        attempt([this] { cboScope.setListIndex(OldTestament); });
    rememberPlace();
    restoreOldQuery();
    QueryEmpty = false;
}

void frmQuery::Form_Unload() {
    SettingCombos = Off;
    QueryLock = Off;
}

void frmQuery::SetupQueryForm() {
    cboScope.Clear();
    cboScope.AddItems(
        {u"Search Both New and Old"_s, u"Search Old Testament ONLY"_s,
         u"Search New Testament ONLY"_s});
    cboScope.setListIndex(BothTestaments);
    fillBooks(u"All Books"_s, 1, BookCount);
}

void frmQuery::fillBooks(const QString& all, int first, int last) {
    const auto names = BookNames.begin() + first - 1;
    cboBook.Clear();
    cboBook.AddItem(all);
    cboBook.AddItems(QStringList(names, names + (last - first + 1)));
    attempt([this] { cboBook.setListIndex(0); });
}

// The books of one testament are those of the other; the list is disabled then.
void frmQuery::cboScope_Click() {
    DoEvents();
    const int scope = cboScope.ListIndex();
    if (scope == OldTestament)
        fillBooks(u"All Books (New)"_s, LastBookOfOldTestament + 1, BookCount);
    else if (scope == NewTestament)
        fillBooks(u"All Books (Old)"_s, 1, LastBookOfOldTestament);
    else
        fillBooks(u"All Books (Both)"_s, 1, BookCount);
    cboBook.setEnabled(scope != OldTestament && scope != NewTestament);
}

void frmQuery::cboBook_Change() {
    txtQuery(0).SetFocus();
    if (cboBook.ListIndex() > 0)
        attempt([this] { cboScope.setListIndex(BothTestaments); });
}

void frmQuery::txtQuery_GotFocus(int Index) const {
    txtQuery(Index).selectAll();
}

void frmQuery::rememberPlace() {
    attempt([this] { OldBook = rsBible.Fields(1).Value(); });
    attempt([this] { OldChapter = rsBible.Fields(2).Value(); });
    attempt([this] { OldVerse = rsBible.Fields(3).Value(); });
}

void frmQuery::RememberOldQuery() const {
    QueryHistory[0] = txtQuery(0).Text();
    QueryHistory[1] = txtQuery(1).Text();
    OldQueryBoth = optAndOr(0).Value();
    OldQueryBook = cboBook.ListIndex();
    OldQueryScope = cboScope.ListIndex();
    OldQueryWhole = chkMatchCase.Value();
}

// In this order: a scope that differs takes the remembered book away.
void frmQuery::restoreOldQuery() {
    txtQuery(0).setText(QueryHistory[0]);
    txtQuery(1).setText(QueryHistory[1]);
    optAndOr(0).setValue(OldQueryBoth);
    attempt([this] { cboBook.setListIndex(OldQueryBook); });
    attempt([this] { cboScope.setListIndex(OldQueryScope); });
    chkMatchCase.setValue(OldQueryWhole);
}

bool frmQuery::MakeSQLString() const {
    const QueryChoice choice{txtQuery(0).Text(),   txtQuery(1).Text(),   optAndOr(0).Value(),
                             chkMatchCase.Value(), cboScope.ListIndex(), cboBook.ListIndex()};
    if (choice.firstWord.isEmpty()) {
        MsgBox(
            u"Please enter some text to look for in at least the first text box."_s,
            MessageIcon::Information, u"Need Text"_s);
        txtQuery(0).SetFocus();
        return false;
    }
    QuerySQL = queryText(choice);
    QueryWords[0] = choice.firstWord;
    QueryWords[1] = choice.secondWord;
    return true;
}

void frmQuery::ExecuteSQL() {
    showHourglass();
    rememberPlace();
    QueryLock = On;
    SettingCombos = On;
    InQuery = On;
    form<frmMain>().enableLists(false);
    attempt([] { OpenBibleTable(); });
    QueryEmpty = false;
    try {
        rsBible = dbBible.OpenRecordset(QuerySQL, dbOpenDynaset);
        if (rsBible.Bof() && rsBible.Eof())
            returnFromEmptyQuery();
    } catch (const Error& error) {
        MsgBox(
            u"Error in Setting up Query: \n\n"_s + error.text(), MessageIcon::Information,
            u"SQL Error"_s);
        showNormalPointer();
    }
}

void frmQuery::returnFromEmptyQuery() {
    showNormalPointer();
    MsgBox(
        u"There were no verses with the attributes you chose."_s, MessageIcon::Information,
        u"Verses Not Found"_s);
    setCaption(u"Query for Verses"_s);
    QueryEmpty = true;
    OpenBibleTable();
    rsBible.Seek(u"="_s, OldBook, OldChapter, OldVerse);
    if (rsBible.NoMatch())
        rsBible.Seek(u"="_s, 1, 1, 1);
    form<frmMain>().setListsToCursor();
}

void frmQuery::cmdQuery_Click(int Index) {
    if (Index == Ok)
        runQuery();
    else if (Index == Cancel)
        cancel();
}

void frmQuery::runQuery() {
    RememberOldQuery();
    if (!MakeSQLString())
        return;
    showHourglass();
    setCaption(u"Searching..."_s);
    DoEvents();
    ExecuteSQL();
    QueryLock = On;
    if (!QueryEmpty)
        showResult();
    SettingCombos = Off;
}

void frmQuery::showResult() {
    auto& main = form<frmMain>();
    SettingCombos = On;
    SkipComboClick = On;
    main.setListsToCursor();
    SkipComboClick = Off;
    Unload();
    QueryLock = On;
    attempt([&] { main.UpDateBibleText(true); });
    main.txtFind.SetFocus();
    main.showNormalPointer();
    QueryLock = On;
}

// A query that was on when the window opened goes on; one that found nothing waits for End Query.
void frmQuery::cancel() {
    if (m_foundInQuery == On)
        InQuery = On;
    QueryCancelled = Cancelled;
    attempt([] { form<frmMain>().UpDateBibleText(true); });
    Unload();
    form<frmMain>().txtFind.SetFocus();
    SettingCombos = Off;
    QueryLock = Off;
}

void frmQuery::cmdHelp_Click() {
    ShowHelp(u"10"_s);
}
