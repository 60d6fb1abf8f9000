// Tests of the simple search.
#pragma once

#include "search/SearchFixture.h"
#include "search/frmSimpleFind.h"

#include <functional>

using namespace Qt::StringLiterals;

class SimpleFindFixture : public SearchFixture {
protected:
    enum Press { First, Next, Previous, Close };

    // Opens the window from the menu; the action plays its user and must close it.
    void inWindow(const std::function<void(frmSimpleFind&)>& user) {
        desktop.expectWindow([&](QWidget& opened) { user(static_cast<frmSimpleFind&>(opened)); });
        window().mnuSearch(3).trigger();
        EXPECT_FALSE(isLoaded<frmSimpleFind>());
    }

    static void press(frmSimpleFind& find, Press button) { find.cmdFind(button).setValue(true); }

    static void search(frmSimpleFind& find, const QString& text, Press button = Next) {
        find.txtFind.setText(text);
        press(find, button);
    }

    void expectNotFound(Answer answer) {
        desktop.expectMessage(
            {u"After the current verse no verses were found.\r\n\r\n"
             u"Would you like to search from the beginning of the Bible (Genesis)?"_s,
             u"Not Found"_s, MessageIcon::Question, MessageButtons::YesNo},
            answer);
    }

    void expectBeginning() {
        desktop.expectMessage(
            {u"The current verse is now at the beginning of the Bible. Press Find Next to "
             u"continue."_s,
             u""_s, MessageIcon::Information});
    }

    void expectNoneBefore(const QString& text) {
        desktop.expectMessage(
            {u"Prior to the current verse no other contained the text: \n"_s + text,
             u"No More Found"_s, MessageIcon::Information});
    }
};
