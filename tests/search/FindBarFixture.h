// Tests of the find bar.
#pragma once

#include "search/SearchFixture.h"

using namespace Qt::StringLiterals;

class FindBarFixture : public SearchFixture {
protected:
    void SetUp() override {
        SearchFixture::SetUp();
        rsBible.MoveFirst();
    }

    static void findNext(const QString& text) {
        window().txtFind.setText(text);
        window().cmdMain(8).setValue(true);
    }

    static void findPrevious(const QString& text) {
        window().txtFind.setText(text);
        window().cmdMain(7).setValue(true);
    }

    void expectMissForward(const QString& text) {
        desktop.expectMessage(
            {u"After the current verse no other contained the text: \n"_s + text, u"Not Found"_s,
             MessageIcon::Information});
    }

    void expectMissBackward(const QString& text) {
        desktop.expectMessage(
            {u"Prior to the current verse no other contained the text: \n"_s + text,
             u"No More Found"_s, MessageIcon::Information});
    }
};
