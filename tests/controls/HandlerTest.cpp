#include "controls/Handler.h"

#include "basic/Error.h"
#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "support/ScriptedDesktop.h"

#include <gtest/gtest.h>
#include <stdexcept>

using namespace Qt::StringLiterals;

TEST(Handler, showsAnErrorThatNobodyCaughtAndGoesOn) {
    ScriptedDesktop script;
    script.expectMessage({u"No current record."_s, u"Lumenvia"_s, MessageIcon::Exclamation});
    bool wentOn = false;
    runHandler([] { throw Error(Error::NoCurrentRecord, u"No current record."_s); });
    runHandler([&] { wentOn = true; });
    EXPECT_TRUE(wentOn);
}

TEST(Handler, showsAFailureOfALibraryToo) {
    ScriptedDesktop script;
    script.expectMessage({u"broken"_s, u"Lumenvia"_s, MessageIcon::Stop});
    runHandler([] { throw std::runtime_error("broken"); });
}

TEST(Handler, nothingRunsAfterTheEndOfTheProgram) {
    ScriptedDesktop script;
    script.expectEnd();
    runHandler([] { desktop().endProgram(); });
    EXPECT_TRUE(programHasEnded());
    bool ran = false;
    runHandler([&] { ran = true; });
    EXPECT_FALSE(ran);
}

TEST(Handler, theEndOfTheProgramIsNoErrorToBeIgnored) {
    ScriptedDesktop script;
    script.expectEnd();
    bool wentOn = false;
    runHandler([&] {
        attempt([] { desktop().endProgram(); });
        wentOn = true;
    });
    EXPECT_FALSE(wentOn);
}

namespace {

struct Window {
    ControlArray<CommandButton> buttons;
    QList<int> pressed;

    void buttons_Click(int Index) { pressed.append(Index); }

    void addButton(int index) {
        buttons.add(index, std::make_unique<CommandButton>(nullptr, ControlText{u"cmd"}));
    }
};

} // namespace

TEST(ControlArray, handlersGetTheIndexAndGapsAreAllowed) {
    Window window;
    window.addButton(0);
    window.addButton(6);
    on(window.buttons, &CommandButton::Click, &window, &Window::buttons_Click);
    window.buttons(6).setValue(true);
    window.buttons(0).setValue(true);
    EXPECT_EQ(window.pressed, (QList<int>{6, 0}));
    EXPECT_THROW(window.buttons(3), Error);
}

TEST(ControlArray, elementsComeAndGo) {
    Window window;
    window.addButton(1);
    window.buttons.remove(1);
    EXPECT_FALSE(window.buttons.contains(1));
    EXPECT_THROW(window.buttons.remove(1), Error);
}
