#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/TextBox.h"

#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class FocusForm final : public Form {
public:
    FocusForm()
        : Form(u"frmFocus"_s) {
        for (TextBox* box : {&first, &second}) {
            box->GotFocus.handleWith([this, box] { log.append(box->objectName() + u" got"_s); });
            box->LostFocus.handleWith([this, box] { log.append(box->objectName() + u" lost"_s); });
        }
        Show();
        QCoreApplication::processEvents();
        first.SetFocus();
        log.clear();
    }

    TextBox first{this, {u"first"}};
    TextBox second{this, {u"second"}};
    QStringList log;
};

void sendFocus(QWidget& widget, QEvent::Type type, Qt::FocusReason reason) {
    QFocusEvent event(type, reason);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

TEST(Focus, goesFromOneControlToTheNext) {
    FocusForm form;
    form.second.SetFocus();
    EXPECT_EQ(form.log, (QStringList{u"first lost"_s, u"second got"_s}));
}

TEST(Focus, aMessageBoxTakesAndGivesItBackInSilence) {
    FocusForm form;
    sendFocus(form.first, QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    sendFocus(form.first, QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    EXPECT_TRUE(form.log.isEmpty());
}

TEST(Focus, whatCameInBetweenIsToldOnReturn) {
    FocusForm form;
    sendFocus(form.first, QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    sendFocus(form.second, QEvent::FocusIn, Qt::OtherFocusReason);
    EXPECT_EQ(form.log, (QStringList{u"first lost"_s, u"second got"_s}));
}
