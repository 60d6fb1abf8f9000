#include "desktop/QtDesktop.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct BoxSeen {
    QString text;
    QString title;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QSize size = {};
};

// Presses a button of the message box that opens next.
BoxSeen pressWhenShown(QMessageBox::StandardButton button, const std::function<void()>& show) {
    BoxSeen seen;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        seen = {box->text(), box->windowTitle(), box->icon(), box->size()};
        if (button == QMessageBox::NoButton)
            box->reject();
        else
            box->button(button)->click();
    });
    show();
    return seen;
}

} // namespace

TEST(QtDesktop, showsAMessageAsPlainTextWithItsTitleAndIcon) {
    QtDesktop desktop;
    const BoxSeen seen = pressWhenShown(QMessageBox::Ok, [&] {
        EXPECT_EQ(
            desktop.showMessage({u"<b>1</b>\r\n\r\n2"_s, u"Title"_s, MessageIcon::Stop}),
            Answer::Ok);
    });
    EXPECT_EQ(seen.text, u"<b>1</b>\n\n2"_s);
    EXPECT_EQ(seen.title, u"Title"_s);
    EXPECT_EQ(seen.icon, QMessageBox::Critical);
}

TEST(QtDesktop, cutsATextThatWouldPushTheButtonsOffTheScreen) {
    QtDesktop desktop;
    const auto shown = [&](const QString& text) {
        return pressWhenShown(QMessageBox::Ok, [&] { desktop.showMessage({text, u"Title"_s}); });
    };
    const QString fits = QString(562, u'g') + u"\ng"_s.repeated(19);
    EXPECT_EQ(shown(fits).text, fits);
    for (const QString& text :
         {QString(32000, u'g'), u"grace "_s.repeated(6000), u"g\n"_s.repeated(200)}) {
        const BoxSeen seen = shown(text);
        EXPECT_TRUE(seen.text.endsWith(u"…"_s));
        EXPECT_TRUE(text.startsWith(seen.text.chopped(1)));
        EXPECT_LT(seen.size.height(), QGuiApplication::primaryScreen()->size().height());
    }
}

TEST(QtDesktop, asksYesOrNoAndTakesTheClosedBoxForNo) {
    QtDesktop desktop;
    const Message question{u"?"_s, u"Q"_s, MessageIcon::Question, MessageButtons::YesNo};
    const auto answers = [&](Answer answer) {
        return [&, answer] { EXPECT_EQ(desktop.showMessage(question), answer); };
    };
    EXPECT_EQ(pressWhenShown(QMessageBox::Yes, answers(Answer::Yes)).icon, QMessageBox::Question);
    pressWhenShown(QMessageBox::No, answers(Answer::No));
    pressWhenShown(QMessageBox::NoButton, answers(Answer::No));
}

TEST(QtDesktop, aModalWindowReturnsWhenItIsHidden) {
    QtDesktop desktop;
    QWidget window;
    QTimer::singleShot(0, [&] {
        EXPECT_TRUE(window.isModal());
        window.hide();
    });
    desktop.runModal(window);
    EXPECT_FALSE(window.isVisible());
}

TEST(QtDesktop, aModalWindowThatIsGoneReturnsToo) {
    QtDesktop desktop;
    auto* window = new QWidget;
    QTimer::singleShot(0, window, &QObject::deleteLater);
    desktop.runModal(*window);
}

TEST(QtDesktop, endsTheProgramByLeavingEveryRoutine) {
    QtDesktop desktop;
    EXPECT_THROW(desktop.endProgram(), ProgramEnd);
}
