#include "richtext/RichTextBox.h"

#include "controls/Form.h"
#include "controls/TextBox.h"

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// A window with the box and a line beside it, and a record of the box's events.
struct EventsTest : testing::Test {
    Form window{u"frmTest"_s};
    RichTextBox box{&window, {u"txtTest", u"Text"}};
    TextBox line{&window, {u"txtLine", u"Line"}};
    QStringList events;

    EventsTest() {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(&box);
        layout->addWidget(&line);
        window.resize(400, 300);
    }

    void showWindow() {
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        box.setFocus();
    }

    void recordKeys() {
        box.KeyDown.handleWith(
            [this](int& code, int shift) { events += u"down %1 %2"_s.arg(code).arg(shift); });
        box.KeyPress.handleWith([this](int& character) { events += u"press %1"_s.arg(character); });
        box.KeyUp.handleWith([this](int& code, int shift) {
            events += u"up %1 %2 '%3'"_s.arg(code).arg(shift).arg(box.Text());
        });
    }

    void recordFocus() {
        box.GotFocus.handleWith([this] { events += u"got"_s; });
        box.LostFocus.handleWith([this] { events += u"lost"_s; });
    }

    void recordMouse() {
        const auto record = [this](const QString& name) {
            return [this, name](int button, int shift, int x, int y) {
                events += u"%1 %2 %3 %4,%5"_s.arg(name).arg(button).arg(shift).arg(x).arg(y);
            };
        };
        box.MouseDown.handleWith(record(u"down"_s));
        box.MouseUp.handleWith(record(u"up"_s));
        box.MouseMove.handleWith(record(u"move"_s));
        box.Click.handleWith([this] { events += u"click"_s; });
        box.DblClick.handleWith([this] { events += u"double"_s; });
    }

    void showMessage(QMessageBox& message) {
        message.show();
        message.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&message));
    }

    void close(QMessageBox& message) {
        message.close();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
};

} // namespace

TEST_F(EventsTest, aKeyGoesDownTypesAndComesUpWhenTheTextHasChanged) {
    showWindow();
    recordKeys();
    QTest::keyClick(&box, Qt::Key_A);
    EXPECT_EQ(events, (QStringList{u"down 65 0"_s, u"press 97"_s, u"up 65 0 'a'"_s}));
}

TEST_F(EventsTest, keysThatTypeNothingRaiseNoKeyPress) {
    showWindow();
    recordKeys();
    QTest::keyClick(&box, Qt::Key_PageDown);
    EXPECT_EQ(events, (QStringList{u"down 34 0"_s, u"up 34 0 ''"_s}));
}

TEST_F(EventsTest, theShiftKeysAreKeysToo) {
    showWindow();
    recordKeys();
    QTest::keyClick(&box, Qt::Key_PageDown, Qt::ShiftModifier);
    EXPECT_EQ(
        events, (QStringList{u"down 16 1"_s, u"down 34 1"_s, u"up 34 1 ''"_s, u"up 16 0 ''"_s}));
}

TEST_F(EventsTest, aKeyDownSetToZeroDropsTheKey) {
    showWindow();
    recordKeys();
    box.KeyDown.handleWith([](int& code, int) { code = 0; });
    QTest::keyClick(&box, Qt::Key_A);
    EXPECT_EQ(box.Text(), QString());
    EXPECT_EQ(events, QStringList{u"up 65 0 ''"_s});
}

TEST_F(EventsTest, aKeyPressSetToZeroDropsTheCharacter) {
    showWindow();
    box.KeyPress.handleWith([](int& character) { character = 0; });
    QTest::keyClicks(&box, u"abc"_s);
    EXPECT_EQ(box.Text(), QString());
}

TEST_F(EventsTest, aKeyPressMayTypeAnotherCharacter) {
    showWindow();
    box.KeyPress.handleWith([](int& character) { character = character == u'b' ? u'y' : u'x'; });
    QTest::keyClicks(&box, u"ab"_s);
    EXPECT_EQ(box.Text(), u"xy"_s);
}

TEST_F(EventsTest, aHeldKeyGoesDownAgainAndComesUpOnce) {
    showWindow();
    recordKeys();
    const auto send = [this](QEvent::Type type, bool repeat) {
        QKeyEvent event(type, Qt::Key_Down, Qt::NoModifier, {}, repeat);
        QApplication::sendEvent(&box, &event);
    };
    send(QEvent::KeyPress, false);
    send(QEvent::KeyRelease, true);
    send(QEvent::KeyPress, true);
    send(QEvent::KeyRelease, false);
    EXPECT_EQ(events, (QStringList{u"down 40 0"_s, u"down 40 0"_s, u"up 40 0 ''"_s}));
}

TEST_F(EventsTest, aKeyPressedElsewhereComesUpSilently) {
    showWindow();
    recordKeys();
    QTest::keyRelease(&box, Qt::Key_Return);
    EXPECT_TRUE(events.isEmpty());
}

TEST_F(EventsTest, mouseEventsCarryButtonShiftAndPlace) {
    showWindow();
    recordMouse();
    QTest::mousePress(box.viewport(), Qt::RightButton, Qt::ControlModifier, QPoint(30, 40));
    QTest::mouseRelease(box.viewport(), Qt::RightButton, Qt::ControlModifier, QPoint(31, 40));
    EXPECT_EQ(events, (QStringList{u"down 2 2 30,40"_s, u"up 2 2 31,40"_s}));
}

TEST_F(EventsTest, aClickFollowsTheReleaseOfTheLeftButton) {
    showWindow();
    recordMouse();
    QTest::mouseClick(box.viewport(), Qt::LeftButton, Qt::ShiftModifier, QPoint(5, 6));
    EXPECT_EQ(events, (QStringList{u"down 1 1 5,6"_s, u"up 1 1 5,6"_s, u"click"_s}));
}

TEST_F(EventsTest, aReleaseOutsideTheBoxIsNoClick) {
    showWindow();
    recordMouse();
    QTest::mousePress(box.viewport(), Qt::LeftButton, {}, QPoint(5, 6));
    QTest::mouseRelease(box.viewport(), Qt::LeftButton, {}, QPoint(-5, 6));
    EXPECT_FALSE(events.contains(u"click"_s));
}

TEST_F(EventsTest, theSecondPressOfADoubleClickIsNoClick) {
    showWindow();
    recordMouse();
    const auto send = [this](QEvent::Type type) {
        QMouseEvent event(
            type, QPointF(5, 6), box.viewport()->mapToGlobal(QPointF(5, 6)), Qt::LeftButton,
            Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(box.viewport(), &event);
    };
    for (const auto type :
         {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
          QEvent::MouseButtonRelease})
        send(type);
    EXPECT_EQ(
        events, (QStringList{
                    u"down 1 0 5,6"_s, u"up 1 0 5,6"_s, u"click"_s, u"double"_s, u"up 1 0 5,6"_s}));
}

TEST_F(EventsTest, theMouseMovesWithoutAButtonToo) {
    showWindow();
    recordMouse();
    const auto move = [this](Qt::MouseButtons buttons) {
        QMouseEvent event(
            QEvent::MouseMove, QPointF(9, 8), box.viewport()->mapToGlobal(QPointF(9, 8)),
            Qt::NoButton, buttons, Qt::NoModifier);
        QApplication::sendEvent(box.viewport(), &event);
    };
    EXPECT_TRUE(box.viewport()->hasMouseTracking());
    move(Qt::NoButton);
    move(Qt::LeftButton);
    EXPECT_EQ(events, (QStringList{u"move 0 0 9,8"_s, u"move 1 0 9,8"_s}));
}

TEST_F(EventsTest, aRightClickKeepsTheSelectionAndShowsNoMenuOfItsOwn) {
    box.setText(u"one two"_s);
    box.setLocked(true);
    showWindow();
    box.Find(u"two"_s);
    QTest::mouseClick(box.viewport(), Qt::RightButton, {}, QPoint(30, 30));
    QContextMenuEvent menu(
        QContextMenuEvent::Mouse, QPoint(30, 30), box.viewport()->mapToGlobal(QPoint(30, 30)));
    QApplication::sendEvent(box.viewport(), &menu);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(box.SelText(), u"two"_s);
}

TEST_F(EventsTest, movesOfTheFocusWithinTheWindowAreToldInOrder) {
    showWindow();
    recordFocus();
    line.setFocus();
    box.setFocus();
    EXPECT_EQ(events, (QStringList{u"lost"_s, u"got"_s}));
}

TEST_F(EventsTest, aMessageBoxTakesAndGivesBackTheFocusSilently) {
    showWindow();
    recordFocus();
    QMessageBox message(&window);
    showMessage(message);
    close(message);
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(events, QStringList());
}

TEST_F(EventsTest, aFocusThatComesBackToAnotherControlIsLost) {
    showWindow();
    recordFocus();
    QMessageBox message(&window);
    showMessage(message);
    line.setFocus();
    close(message);
    EXPECT_TRUE(line.hasFocus());
    EXPECT_EQ(events, QStringList{u"lost"_s});
    box.setFocus();
    EXPECT_EQ(events, (QStringList{u"lost"_s, u"got"_s}));
}

TEST_F(EventsTest, aMenuTakesAndGivesBackTheFocusSilently) {
    showWindow();
    recordFocus();
    QMenu menu(&window);
    menu.addAction(u"Look up"_s);
    menu.popup(window.mapToGlobal(QPoint(10, 10)));
    EXPECT_TRUE(menu.isVisible());
    menu.close();
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(events, QStringList());
}

TEST_F(EventsTest, changeIsRaisedByTypingAndByCode) {
    int changes = 0;
    box.Change.handleWith([&] { ++changes; });
    showWindow();
    box.setText(u"one"_s);
    EXPECT_EQ(changes, 1);
    box.setSelStart(3);
    QTest::keyClick(&box, Qt::Key_S);
    EXPECT_EQ(box.Text(), u"ones"_s);
    EXPECT_EQ(changes, 2);
    box.Find(u"one"_s);
    box.setSelBold(true);
    EXPECT_EQ(changes, 2);
}
