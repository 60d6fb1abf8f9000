#include "controls/LinkLabel.h"

#include "controls/ButtonRow.h"
#include "controls/Form.h"

#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class LinkForm final : public Form {
public:
    LinkForm()
        : Form(u"frmLink"_s) {
        auto* column = new QVBoxLayout(this);
        column->addWidget(&lblLink);
        column->addWidget(&cmdOk);
        setDefaultButton(*this, cmdOk);
        lblLink.Click.handleWith([this] { ++clicks; });
        cmdOk.Click.handleWith([this] { ++presses; });
        Show();
        QCoreApplication::processEvents();
    }

    LinkLabel lblLink{this, {u"lblLink", u"a < b & c"}};
    CommandButton cmdOk{this, {u"cmdOk", u"OK"}};
    int clicks = 0;
    int presses = 0;
};

} // namespace

TEST(LinkLabel, showsItsTextAsItStands) {
    LinkForm form;
    EXPECT_EQ(form.lblLink.Caption(), u"a < b & c"_s);
    EXPECT_EQ(form.lblLink.accessibleName(), u"a < b & c"_s);
    EXPECT_TRUE(form.lblLink.text().contains(u"a &lt; b &amp; c"_s));
}

TEST(LinkLabel, isClickedByTheMouse) {
    LinkForm form;
    QTest::mouseClick(&form.lblLink, Qt::LeftButton, {}, {3, form.lblLink.height() / 2});
    EXPECT_EQ(form.clicks, 1);
}

TEST(LinkLabel, isReachedByTabAndPressedByEnter) {
    LinkForm form;
    form.cmdOk.SetFocus();
    QTest::keyClick(&form.cmdOk, Qt::Key_Tab);
    ASSERT_EQ(form.focusWidget(), &form.lblLink);
    QTest::keyClick(&form.lblLink, Qt::Key_Return);
    EXPECT_EQ(form.clicks, 1);
    EXPECT_EQ(form.presses, 0);
}
