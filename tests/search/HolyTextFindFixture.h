// Tests of the advanced search.
#pragma once

#include "search/SearchFixture.h"
#include "search/frmHolyTextFind.h"

#include <functional>

class HolyTextFindFixture : public SearchFixture {
protected:
    enum Press { First, Close, Query, Next, Previous };

    // Opens the window from the menu; the action plays its user and must close it.
    void inWindow(const std::function<void(frmHolyTextFind&)>& user) {
        desktop.expectWindow([&](QWidget& opened) { user(static_cast<frmHolyTextFind&>(opened)); });
        window().mnuSearch(4).trigger();
        EXPECT_FALSE(isLoaded<frmHolyTextFind>());
    }

    static void press(frmHolyTextFind& find, Press button) {
        find.cmdHolyTextFind(button).setValue(true);
    }

    static void search(frmHolyTextFind& find, const QString& text, Press button = Next) {
        find.txtFind(0).setText(text);
        press(find, button);
    }

    void expectNotFound(Answer answer) {
        desktop.expectMessage(
            {QStringLiteral("No verses found from this point FORWARD.\r\n\r\n"
                            "Would you like to search from the beginning of the Bible?"),
             QStringLiteral("Not Found"), MessageIcon::Question, MessageButtons::YesNo},
            answer);
    }

    void expectBeginning() {
        desktop.expectMessage(
            {QStringLiteral("The current verse is now at the beginning of the Bible. Press Find "
                            "Next to continue."),
             QStringLiteral(""), MessageIcon::Information});
    }

    void expectNonePrior() {
        desktop.expectMessage(
            {QStringLiteral("There were no verse found prior to the current verse."),
             QStringLiteral("Not Found"), MessageIcon::Information});
    }
};
