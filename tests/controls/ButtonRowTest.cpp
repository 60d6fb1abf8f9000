#include "controls/ButtonRow.h"

#include "controls/Form.h"
#include "controls/TextBox.h"

#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class RowForm final : public Form {
public:
    RowForm()
        : Form(u"frmRow"_s) {
        auto* column = new QVBoxLayout(this);
        column->addWidget(&txtOne);
        column->addWidget(&txtMany);
        auto* buttons = new ButtonRow(&cmdOk, &cmdCancel);
        buttons->addOther(cmdMore);
        column->addWidget(buttons);
        setDefaultButton(*this, cmdOk);
        for (CommandButton* button : {&cmdOk, &cmdCancel, &cmdMore})
            button->Click.handleWith([this, button] { pressed.append(button->objectName()); });
        Show();
        QCoreApplication::processEvents();
    }

    TextBox txtOne{this, {u"txtOne"}};
    MultilineTextBox txtMany{this, {u"txtMany"}};
    CommandButton cmdOk{this, {u"cmdOk", u"OK"}};
    CommandButton cmdCancel{this, {u"cmdCancel", u"&Cancel"}};
    CommandButton cmdMore{this, {u"cmdMore", u"&More"}};
    QStringList pressed;
};

} // namespace

TEST(ButtonRow, enterInAFieldPressesTheDefaultButton) {
    RowForm form;
    QTest::keyClick(&form.txtOne, Qt::Key_Return);
    QTest::keyClick(&form.txtOne, Qt::Key_Enter);
    EXPECT_EQ(form.pressed, (QStringList{u"cmdOk"_s, u"cmdOk"_s}));
}

TEST(ButtonRow, enterThatAControlWantsIsItsOwn) {
    RowForm form;
    QTest::keyClick(&form.txtMany, Qt::Key_Return);
    EXPECT_TRUE(form.pressed.isEmpty());
    EXPECT_EQ(form.txtMany.Text(), u"\n"_s);
}

TEST(ButtonRow, enterOnAnotherButtonPressesThatOne) {
    RowForm form;
    QTest::keyClick(&form.cmdCancel, Qt::Key_Return);
    QTest::keyClick(&form.cmdMore, Qt::Key_Return);
    EXPECT_EQ(form.pressed, (QStringList{u"cmdCancel"_s, u"cmdMore"_s}));
}

TEST(ButtonRow, aDisabledDefaultButtonIsNotPressed) {
    RowForm form;
    form.cmdOk.setEnabled(false);
    QTest::keyClick(&form.txtOne, Qt::Key_Return);
    EXPECT_TRUE(form.pressed.isEmpty());
}

TEST(ButtonRow, otherKeysPressNothing) {
    RowForm form;
    QTest::keyClick(&form.txtOne, Qt::Key_A);
    QTest::keyClick(&form.txtOne, Qt::Key_F1);
    EXPECT_TRUE(form.pressed.isEmpty());
    EXPECT_EQ(form.txtOne.Text(), u"a"_s);
}
