#include "controls/Forms.h"

#include "controls/CommandButton.h"
#include "support/ScriptedDesktop.h"

#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QStringList steps;

class frmSample final : public Form {
public:
    frmSample()
        : Form(u"frmSample"_s) {
        cmdClose.Click.handleWith([this] {
            steps.append(u"pressed"_s);
            Unload();
        });
    }

    CommandButton cmdClose{this, {u"cmdClose", u"&Close"}};
    bool refuses = false;

protected:
    void Form_Load() override {
        steps.append(u"load"_s);
        if (refuses)
            Unload();
    }
    void Form_Unload() override { steps.append(u"unload"_s); }
    CommandButton* closingButton() override { return &cmdClose; }
};

class FormTest : public testing::Test {
protected:
    void SetUp() override { steps.clear(); }
    void TearDown() override { forms::discardAll(); }
};

} // namespace

TEST_F(FormTest, makingAFormIsNotLoadingIt) {
    form<frmSample>().refuses = false;
    EXPECT_FALSE(isLoaded<frmSample>());
    EXPECT_TRUE(steps.isEmpty());
}

TEST_F(FormTest, isLoadedOnceBeforeItIsFirstShown) {
    form<frmSample>().Show();
    form<frmSample>().Show();
    EXPECT_TRUE(isLoaded<frmSample>());
    EXPECT_EQ(steps, QStringList{u"load"_s});
    EXPECT_TRUE(form<frmSample>().isVisible());
}

TEST_F(FormTest, anUnloadedFormIsGoneAndItsNameMakesAnother) {
    frmSample* first = &form<frmSample>();
    first->Show();
    first->Unload();
    EXPECT_FALSE(isLoaded<frmSample>());
    EXPECT_FALSE(first->isVisible());
    EXPECT_NE(&form<frmSample>(), first);
    EXPECT_EQ(steps, (QStringList{u"load"_s, u"unload"_s}));
}

TEST_F(FormTest, aFormThatUnloadsItselfInItsLoadIsNotShown) {
    frmSample& window = form<frmSample>();
    window.refuses = true;
    window.Show();
    EXPECT_FALSE(window.isVisible());
    window.Show();
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(isLoaded<frmSample>());
}

TEST_F(FormTest, aModalFormReturnsWhenItIsClosed) {
    ScriptedDesktop script;
    script.expectWindow([](QWidget& window) {
        QTest::mouseClick(window.findChild<QWidget*>(u"cmdClose"_s), Qt::LeftButton);
    });
    form<frmSample>().ShowModal();
    EXPECT_EQ(steps, (QStringList{u"load"_s, u"pressed"_s, u"unload"_s}));
}

TEST_F(FormTest, escapeAndTheTitleBarPressItsClosingButton) {
    form<frmSample>().Show();
    QTest::keyClick(&form<frmSample>(), Qt::Key_Escape);
    EXPECT_EQ(steps, (QStringList{u"load"_s, u"pressed"_s, u"unload"_s}));
    form<frmSample>().Show();
    form<frmSample>().close();
    EXPECT_EQ(steps.count(u"pressed"_s), 2);
    EXPECT_FALSE(isLoaded<frmSample>());
}

TEST_F(FormTest, aFormWithoutAClosingButtonUnloadsByItsTitleBarAndNotByEscape) {
    class frmPlain final : public Form {
    public:
        frmPlain()
            : Form(u"frmPlain"_s) {}
    };
    form<frmPlain>().Show();
    QTest::keyClick(&form<frmPlain>(), Qt::Key_Escape);
    EXPECT_TRUE(isLoaded<frmPlain>());
    form<frmPlain>().close();
    EXPECT_FALSE(isLoaded<frmPlain>());
}

TEST_F(FormTest, aFontSizeThatNoFontCanHaveChangesNothing) {
    frmSample& window = form<frmSample>();
    window.setFontSize(14);
    for (const double size : {0.0, -3.0, 1e9, qQNaN()})
        window.setFontSize(size);
    EXPECT_EQ(window.FontSize(), 14);
}
