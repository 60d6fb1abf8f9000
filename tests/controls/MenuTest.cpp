#include "controls/Menu.h"

#include "controls/Form.h"

#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class MenuForm final : public Form {
public:
    MenuForm()
        : Form(u"frmMenu"_s) {
        on(items, &MenuItem::Click, this, &MenuForm::items_Click);
        addAction(menu.menuAction());
        Show();
        QCoreApplication::processEvents();
    }

    void items_Click(int Index) { clicked.append(Index); }

    QMenu menu{this};
    MenuArray items{
        this,
        &menu,
        u"mnuedit"_s,
        {{0, u"&Cut"_s, {}},
         {1, u"-"_s, {}},
         {2, u"&Find"_s, u"Ctrl+J"_s},
         {5, u"&Hide"_s, u"Shift+F2"_s, true}}};
    QList<int> clicked;
};

} // namespace

TEST(Menu, showsItsRowsAndHidesTheHidden) {
    MenuForm form;
    EXPECT_EQ(form.menu.actions().size(), 3);
    EXPECT_TRUE(form.items(1).isSeparator());
    EXPECT_FALSE(form.menu.actions().contains(&form.items(5)));
    EXPECT_EQ(form.items(2).objectName(), u"mnuedit(2)"_s);
}

TEST(Menu, shortcutsOfShownAndHiddenItemsWork) {
    MenuForm form;
    QTest::keyClick(&form, Qt::Key_J, Qt::ControlModifier);
    QTest::keyClick(&form, Qt::Key_F2, Qt::ShiftModifier);
    EXPECT_EQ(form.clicked, (QList<int>{2, 5}));
}

TEST(Menu, aShortcutBehindBlanksStandsInItsColumn) {
    MenuItem item(nullptr, u"mnu"_s, u"&Go      Ctrl+G"_s);
    EXPECT_EQ(item.text(), u"&Go\tCtrl+G"_s);
    EXPECT_EQ(item.Caption(), u"&Go      Ctrl+G"_s);
}

TEST(Menu, blanksInALaterCaptionStayAsTheyAre) {
    MenuItem item(nullptr, u"mnu"_s, {});
    item.setCaption(u"Hope   and   love"_s);
    EXPECT_EQ(item.text(), u"Hope   and   love"_s);
}

TEST(Menu, aClickDoesNotTurnACheckMark) {
    MenuForm form;
    form.items(0).setChecked(true);
    form.items(0).trigger();
    EXPECT_TRUE(form.items(0).Checked());
    form.items(0).setChecked(false);
    form.items(0).trigger();
    EXPECT_FALSE(form.items(0).Checked());
}

TEST(Menu, itemsComeAndGo) {
    MenuForm form;
    MenuItem& item = form.items.Load(6);
    EXPECT_FALSE(item.Visible());
    item.setCaption(u"John"_s);
    item.setVisible(true);
    EXPECT_EQ(form.menu.actions().constLast(), &item);
    EXPECT_THROW(form.items.Load(6), Error);
    form.items.Unload(6);
    EXPECT_EQ(form.menu.actions().size(), 3);
    EXPECT_THROW(form.items.Unload(6), Error);
}
