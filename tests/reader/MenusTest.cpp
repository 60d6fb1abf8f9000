// The menus against their table, and every shortcut through the real window.
#include "core/GlobalCode.h"
#include "reader/frmMain.h"
#include "settings/SettingsStore.h"
#include "support/ProgramFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class Menus : public ProgramFixture {
protected:
    void SetUp() override {
        startProgram();
        QCoreApplication::processEvents();
    }

    static frmMain& window() { return form<frmMain>(); }

    // Captions of a menu, in order, as index and caption; "-" for a separator, "(h)" for a hidden
    // item, and the shortcut behind "@".
    static QString outline(const MenuArray& menu) {
        QStringList lines;
        for (const auto& [index, item] : menu) {
            QString line =
                QString::number(index) + u' ' + (item->isSeparator() ? u"-"_s : item->Caption());
            if (!menu.menu()->actions().contains(item.get()))
                line += u"(h)"_s;
            if (!item->shortcut().isEmpty())
                line += u'@' + item->shortcut().toString(QKeySequence::PortableText);
            lines.append(line);
        }
        return lines.join(u'|');
    }
};

} // namespace

TEST_F(Menus, theRowHoldsEightMenus) {
    QStringList captions;
    for (const QAction* action : window().mnuMain.actions())
        captions.append(action->text());
    EXPECT_EQ(
        captions, (QStringList{
                      u"&File"_s, u"&Edit"_s, u"&Search"_s, u"&Tools"_s, u"&Change Bible"_s,
                      u"&Bookmarks"_s, u"&Download Plugins"_s, u"&Help"_s}));
}

TEST_F(Menus, areLetterForLetter) {
    EXPECT_EQ(
        outline(window().mnufile),
        u"0 &Open New Bible Version@Ctrl+N|1 -|2 &Print...@Ctrl+P|3 Print Pre&view...|4 -|"
        u"5 &Export to Text File...|6 -|7 E&xit@Ctrl+Q"_s);
    EXPECT_EQ(
        outline(window().mnuedit),
        u"0 &Cut                   Ctrl+X|1 C&opy                Ctrl+C|"
        u"2 &Paste               Ctrl+V|3 Select &All          Ctrl+A|4 -(h)|"
        u"5 &Hide Notes(h)@Shift+F2|6 &Hide Toolbar(h)@Shift+F3"_s);
    EXPECT_EQ(
        outline(window().mnuSearch),
        u"0 &Search (Query) for verses...@Ctrl+S|1 Show &All Verses (UnQuery)@Ctrl+J|2 -|"
        u"3 &Simple Search of Verses@F6|4 &Advanced Search of Verses@F7|5 -|"
        u"6 Find text in your &notes...@Ctrl+Y"_s);
    EXPECT_EQ(
        outline(window().mnuTool),
        u"0 &Names and Words Dictionary...@Ctrl+D|1 Make &Index...@Ctrl+I|"
        u"2 Compare Two &Bibles...@Ctrl+T|3 Bible Concor&dance...@Ctrl+O|"
        u"4 Bible &Time Line...@Ctrl+U|5 Bible C&ommentary...@Ctrl+W|"
        u"6 &History of Verse Choices...@Ctrl+H|7 N&otes Report...@Ctrl+L|"
        u"8 T&opic Tracker...@Shift+F1|9 &Red Letter Bible...@Ctrl+R|10 &Greek Lexicon@Ctrl+G|"
        u"11 -|12 &Options..."_s);
    EXPECT_EQ(
        outline(window().mnubible),
        u"0 NA&SB@Ctrl+Shift+F1|1 &NAV@Ctrl+F1|2 &King James@Ctrl+F2|3 &RSV@Ctrl+F3|"
        u"4 A Modern King James Version@Ctrl+F4|5 &Darby@Ctrl+F5|"
        u"6 &Young's Literal Translation@Ctrl+F6|7 &Latin (Vulgate)@Ctrl+F7|"
        u"8 &Español (Spanish RVA)@Ctrl+F8|9 &Français (French LSG)@Ctrl+F9|"
        u"10 &Deutsch (German Elberfelder)@Ctrl+F11|11 Hollands (Dutch S&VV)@Shift+F12|"
        u"12 Hollands (Dutch &LEI)@Ctrl+Shift+F12|13 -|14 How to add these Bibles...|"
        u"15 Bible Descriptions..."_s);
    EXPECT_EQ(
        outline(window().mnuBookmark),
        u"0 &Add Bookmark@Ctrl+Ins|1 &Edit/View/Delete Bookmarks...|2 -"_s);
    EXPECT_EQ(
        outline(window().mnudownload),
        u"0 Download More Bible Translations and Tools|2 Order the &CD"_s);
    EXPECT_EQ(
        outline(window().mnuHelp),
        u"0 &Contents/Index...|1 &Quick Key Listing...|2 &Tip of the Day...|"
        u"6 Get Notified of Updates|7 &Lumenvia HomePage|8 -|9 &About..."_s);
    EXPECT_EQ(
        outline(window().mnutext),
        u"1 &Copy|3 Change How All &Text Looks...(h)|4 -(h)|"
        u"5 &Search (Query) for many verses...(h)|6 -(h)|7 &Find text (Advanced)...(h)|"
        u"8 Find text in your &notes...(h)|9 -|10 &Dictionary Lookup...|11 Concor&dance...|"
        u"12 C&ommentary...(h)|13 &Greek Lexicon"_s);
}

// With the focus in each text box: a box must not keep a shortcut for itself.
TEST_F(Menus, everyShortcutReachesItsItemFromEveryBox) {
    QWidget* boxes[] = {&window().txtMain, &window().txtFind, &window().txtNote, &window().tree};
    const QList<MenuItem*> items = window().findChildren<MenuItem*>();
    int shortcuts = 0;
    for (MenuItem* item : items) {
        if (item->shortcut().isEmpty())
            continue;
        ++shortcuts;
        item->setEnabled(true);
        int clicks = 0;
        item->Click.handleWith([&] { ++clicks; });
        const QKeyCombination keys = item->shortcut()[0];
        for (QWidget* box : boxes) {
            box->setFocus();
            QTest::keyClick(box, keys.key(), keys.keyboardModifiers());
        }
        EXPECT_EQ(clicks, 4) << item->objectName().toStdString();
    }
    EXPECT_EQ(shortcuts, 35);
}

TEST_F(Menus, theMarksOfTheSettingsStandAtStart) {
    EXPECT_FALSE(window().mnuedit(5).Checked());
    EXPECT_FALSE(window().mnuedit(6).Checked());
    const auto startWith = [this](const QString& showHide, const QString& hideToolbar) {
        SaveSetting(ApplicationName, SettingsSection, u"ShowHide"_s, showHide);
        SaveSetting(ApplicationName, SettingsSection, u"HideToolbar"_s, hideToolbar);
        forms::discardAll();
        startProgram();
    };
    startWith(u"0"_s, u"1"_s);
    EXPECT_TRUE(window().mnuedit(5).Checked());
    EXPECT_TRUE(window().mnuedit(6).Checked());
    startWith(u"0"_s, u"0"_s);
    EXPECT_TRUE(window().mnuedit(5).Checked());
    EXPECT_FALSE(window().mnuedit(6).Checked());
}

TEST_F(Menus, theOpenTranslationIsMarkedFromTheStart) {
    QList<int> marked;
    for (const auto& [index, item] : window().mnubible) {
        if (item->Checked())
            marked.append(index);
    }
    EXPECT_EQ(marked, QList<int>{CurrentBible});
}
