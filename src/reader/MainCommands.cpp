#include "reader/MainCommands.h"

using namespace Qt::StringLiterals;

namespace {

QString picture(const QString& name) {
    return u":/icons/tools/"_s + name + u".svg"_s;
}

const MenuRow separator(int index, bool hidden = false) {
    return {index, u"-"_s, {}, hidden};
}

} // namespace

// clang-format off
const QList<ToolBarButton>& toolBarButtons() {
    using enum ToolBarButton::Group;
    static const QList<ToolBarButton> buttons = {
        {0, Output, u"Print"_s, picture(u"print"_s)},
        {17, Output, u"Print Preview"_s, picture(u"preview"_s)},
        {12, Output, u"Export verses to a text file"_s, picture(u"export"_s)},
        {22, Output, u"EMail this chapter to a friend"_s, picture(u"mail"_s)},
        {13, Clipboard, u"Cut text to clipboard"_s, picture(u"cut"_s)},
        {14, Clipboard, u"Copy text to clipboard"_s, picture(u"copy"_s)},
        {15, Clipboard, u"Paste"_s, picture(u"paste"_s)},
        {7, Find, u"Find previous"_s, picture(u"find-previous"_s)},
        {8, Find, u"Find next"_s, picture(u"find-next"_s)},
        {4, Searches, u"Advanced search"_s, picture(u"search"_s)},
        {5, Searches, u"Query verses"_s, picture(u"query"_s)},
        {6, Searches, u"End Query and return verses"_s, picture(u"end-query"_s)},
        {10, Searches, u"Make an index"_s, picture(u"index"_s)},
        {3, Searches, u"Search your study notes"_s, picture(u"search-notes"_s)},
        {16, Tools, u"Open new Bible translation"_s, picture(u"open"_s)},
        {18, Tools, u"Compare 2 Bibles"_s, picture(u"compare"_s)},
        {1, Tools, u"Bible Dictionary"_s, picture(u"dictionary"_s)},
        {19, Tools, u"Bible Time Line"_s, picture(u"time-line"_s)},
        {20, Tools, u"Topic Tracker"_s, picture(u"topics"_s)},
        {21, Tools, u"Red Letter Bible Tool"_s, picture(u"red-letter"_s)},
        {11, Tools, u"View notes report"_s, picture(u"notes-report"_s)},
        {2, Tools, u"View history of visited verses"_s, picture(u"history"_s)},
        {9, Tools, u"Change Options"_s, picture(u"options"_s)},
    };
    return buttons;
}

namespace {

const QList<MenuTable> menus = {
    {0, u"&File"_s, u"mnufile"_s, {
        {0, u"&Open New Bible Version"_s, u"Ctrl+N"_s},
        separator(1),
        {2, u"&Print..."_s, u"Ctrl+P"_s},
        {3, u"Print Pre&view..."_s, {}},
        separator(4),
        {5, u"&Export to Text File..."_s, {}},
        separator(6),
        {7, u"E&xit"_s, u"Ctrl+Q"_s}}},
    {1, u"&Edit"_s, u"mnuedit"_s, {
        {0, u"&Cut                   Ctrl+X"_s, {}},
        {1, u"C&opy                Ctrl+C"_s, {}},
        {2, u"&Paste               Ctrl+V"_s, {}},
        {3, u"Select &All          Ctrl+A"_s, {}},
        separator(4, true),
        {5, u"&Hide Notes"_s, u"Shift+F2"_s, true},
        {6, u"&Hide Toolbar"_s, u"Shift+F3"_s, true}}},
    {2, u"&Search"_s, u"mnuSearch"_s, {
        {0, u"&Search (Query) for verses..."_s, u"Ctrl+S"_s},
        {1, u"Show &All Verses (UnQuery)"_s, u"Ctrl+J"_s},
        separator(2),
        {3, u"&Simple Search of Verses"_s, u"F6"_s},
        {4, u"&Advanced Search of Verses"_s, u"F7"_s},
        separator(5),
        {6, u"Find text in your &notes..."_s, u"Ctrl+Y"_s}}},
    {3, u"&Tools"_s, u"mnuTool"_s, {
        {0, u"&Names and Words Dictionary..."_s, u"Ctrl+D"_s},
        {1, u"Make &Index..."_s, u"Ctrl+I"_s},
        {2, u"Compare Two &Bibles..."_s, u"Ctrl+T"_s},
        {3, u"Bible Concor&dance..."_s, u"Ctrl+O"_s},
        {4, u"Bible &Time Line..."_s, u"Ctrl+U"_s},
        {5, u"Bible C&ommentary..."_s, u"Ctrl+W"_s},
        {6, u"&History of Verse Choices..."_s, u"Ctrl+H"_s},
        {7, u"N&otes Report..."_s, u"Ctrl+L"_s},
        {8, u"T&opic Tracker..."_s, u"Shift+F1"_s},
        {9, u"&Red Letter Bible..."_s, u"Ctrl+R"_s},
        {10, u"&Greek Lexicon"_s, u"Ctrl+G"_s},
        separator(11),
        {12, u"&Options..."_s, {}}}},
    {4, u"&Change Bible"_s, u"mnubible"_s, {
        {0, u"NA&SB"_s, u"Ctrl+Shift+F1"_s},
        {1, u"&NAV"_s, u"Ctrl+F1"_s},
        {2, u"&King James"_s, u"Ctrl+F2"_s},
        {3, u"&RSV"_s, u"Ctrl+F3"_s},
        {4, u"A Modern King James Version"_s, u"Ctrl+F4"_s},
        {5, u"&Darby"_s, u"Ctrl+F5"_s},
        {6, u"&Young's Literal Translation"_s, u"Ctrl+F6"_s},
        {7, u"&Latin (Vulgate)"_s, u"Ctrl+F7"_s},
        {8, u"&Español (Spanish RVA)"_s, u"Ctrl+F8"_s},
        {9, u"&Français (French LSG)"_s, u"Ctrl+F9"_s},
        {10, u"&Deutsch (German Elberfelder)"_s, u"Ctrl+F11"_s},
        {11, u"Hollands (Dutch S&VV)"_s, u"Shift+F12"_s},
        {12, u"Hollands (Dutch &LEI)"_s, u"Ctrl+Shift+F12"_s},
        separator(13),
        {14, u"How to add these Bibles..."_s, {}},
        {15, u"Bible Descriptions..."_s, {}}}},
    {5, u"&Bookmarks"_s, u"mnuBookmark"_s, {
        {0, u"&Add Bookmark"_s, u"Ctrl+Ins"_s},
        {1, u"&Edit/View/Delete Bookmarks..."_s, {}},
        separator(2)}},
    {7, u"&Download Plugins"_s, u"mnudownload"_s, {
        {0, u"Download More Bible Translations and Tools"_s, {}},
        {2, u"Order the &CD"_s, {}}}},
    {8, u"&Help"_s, u"mnuHelp"_s, {
        {0, u"&Contents/Index..."_s, {}},
        {1, u"&Quick Key Listing..."_s, {}},
        {2, u"&Tip of the Day..."_s, {}},
        {6, u"Get Notified of Updates"_s, {}},
        {7, u"&Lumenvia HomePage"_s, {}},
        separator(8),
        {9, u"&About..."_s, {}}}},
};

} // namespace

const QList<MenuTable>& mainMenus() {
    return menus;
}

const MenuTable& popupMenu() {
    static const MenuTable menu = {-1, {}, u"mnutext"_s, {
        {1, u"&Copy"_s, {}},
        {3, u"Change How All &Text Looks..."_s, {}, true},
        separator(4, true),
        {5, u"&Search (Query) for many verses..."_s, {}, true},
        separator(6, true),
        {7, u"&Find text (Advanced)..."_s, {}, true},
        {8, u"Find text in your &notes..."_s, {}, true},
        separator(9),
        {10, u"&Dictionary Lookup..."_s, {}},
        {11, u"Concor&dance..."_s, {}},
        {12, u"C&ommentary..."_s, {}, true},
        {13, u"&Greek Lexicon"_s, {}}}};
    return menu;
}

const QStringList& comingCommands() {
    static const QStringList names = {
        // study
        u"cmdMain(2)"_s, u"mnuTool(6)"_s,
        u"cmdMain(11)"_s, u"mnuTool(7)"_s,
        u"cmdMain(20)"_s, u"mnuTool(8)"_s,
        u"cmdMain(21)"_s, u"mnuTool(9)"_s,
        u"mnuBookmark(0)"_s, u"mnuBookmark(1)"_s,
        // compare
        u"cmdMain(18)"_s, u"mnuTool(2)"_s,
        // reference works
        u"cmdMain(1)"_s, u"mnuTool(0)"_s, u"mnutext(10)"_s,
        u"mnuTool(3)"_s, u"mnutext(11)"_s,
        u"cmdMain(19)"_s, u"mnuTool(4)"_s,
        u"cmdComment"_s, u"mnuTool(5)"_s, u"mnutext(12)"_s,
        u"mnuTool(10)"_s, u"mnutext(13)"_s,
        // output
        u"cmdMain(0)"_s, u"mnufile(2)"_s,
        u"cmdMain(17)"_s, u"mnufile(3)"_s,
        u"cmdMain(12)"_s, u"mnufile(5)"_s,
        // preferences
        u"cmdMain(9)"_s, u"mnuTool(12)"_s, u"mnutext(3)"_s,
        u"mnuHelp(1)"_s, u"mnuHelp(2)"_s,
    };
    return names;
}
// clang-format on
