#include "desktop/KeyCodes.h"

#include <QKeyEvent>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QKeyEvent press(int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) {
    return QKeyEvent(QEvent::KeyPress, key, modifiers, text);
}

int codeOf(int key, Qt::KeyboardModifiers modifiers = {}) {
    return keyCodeOf(press(key, modifiers));
}

int typedBy(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    return characterOf(press(key, modifiers, text));
}

} // namespace

TEST(KeyCodes, keysHaveTheClassicCodes) {
    const std::pair<int, int> expected[] = {
        {Qt::Key_PageUp, 33}, {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},    {Qt::Key_Home, 36},
        {Qt::Key_Left, 37},   {Qt::Key_Up, 38},       {Qt::Key_Right, 39},  {Qt::Key_Down, 40},
        {Qt::Key_Return, 13}, {Qt::Key_Enter, 13},    {Qt::Key_Escape, 27}, {Qt::Key_Backspace, 8},
        {Qt::Key_Tab, 9},     {Qt::Key_Backtab, 9},   {Qt::Key_Shift, 16},  {Qt::Key_Control, 17},
        {Qt::Key_Alt, 18},    {Qt::Key_Delete, 46},   {Qt::Key_Insert, 45}, {Qt::Key_Space, 32},
        {Qt::Key_A, 65},      {Qt::Key_Z, 90},        {Qt::Key_0, 48},      {Qt::Key_9, 57},
        {Qt::Key_F1, 112},    {Qt::Key_F12, 123},     {Qt::Key_Comma, 188},
    };
    for (const auto& [key, code] : expected)
        EXPECT_EQ(codeOf(key), code) << key;
}

TEST(KeyCodes, theCodeDoesNotDependOnTheShiftKeys) {
    for (const auto modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
        EXPECT_EQ(codeOf(Qt::Key_J, modifier), 74);
        EXPECT_EQ(codeOf(Qt::Key_PageDown, modifier), 34);
    }
    EXPECT_EQ(codeOf(Qt::Key_Exclam, Qt::ShiftModifier), 49);
}

TEST(KeyCodes, theKeypadHasItsOwnDigitsAndSigns) {
    EXPECT_EQ(codeOf(Qt::Key_7, Qt::KeypadModifier), 103);
    EXPECT_EQ(codeOf(Qt::Key_Plus, Qt::KeypadModifier), 107);
    EXPECT_EQ(codeOf(Qt::Key_PageDown, Qt::KeypadModifier), 34);
    EXPECT_EQ(codeOf(Qt::Key_Enter, Qt::KeypadModifier), 13);
}

TEST(KeyCodes, aKeyOfAnotherScriptIsACharacterAndADeadKeyIsNothing) {
    EXPECT_EQ(keyCodeOf(press(0x0416, {}, u"ж"_s)), CharacterKey);
    EXPECT_EQ(keyCodeOf(press(Qt::Key_unknown, {}, u"\U00010428"_s)), CharacterKey);
    EXPECT_EQ(codeOf(Qt::Key_Dead_Acute), 0);
    EXPECT_EQ(codeOf(Qt::Key_VolumeUp), 0);
}

TEST(KeyCodes, charactersAreCodePoints) {
    EXPECT_EQ(typedBy(Qt::Key_A, {}, u"a"_s), 97);
    EXPECT_EQ(typedBy(Qt::Key_A, Qt::ShiftModifier, u"A"_s), 65);
    EXPECT_EQ(typedBy(0x0416, {}, u"ж"_s), 0x0436);
    EXPECT_EQ(typedBy(Qt::Key_unknown, {}, u"\U0001F600"_s), 0x1F600);
}

TEST(KeyCodes, controlCharacters) {
    EXPECT_EQ(typedBy(Qt::Key_Return, {}, u"\r"_s), 13);
    EXPECT_EQ(typedBy(Qt::Key_Enter, Qt::KeypadModifier, u"\n"_s), 13);
    EXPECT_EQ(typedBy(Qt::Key_Backspace, {}, u"\b"_s), 8);
    EXPECT_EQ(typedBy(Qt::Key_Escape, {}, QString()), 27);
    EXPECT_EQ(typedBy(Qt::Key_C, Qt::ControlModifier, u"\x03"_s), 3);
    EXPECT_EQ(typedBy(Qt::Key_J, Qt::ControlModifier, QString()), 10);
}

TEST(KeyCodes, keysThatTypeNothing) {
    EXPECT_EQ(typedBy(Qt::Key_Delete, {}, u"\x7F"_s), 0);
    EXPECT_EQ(typedBy(Qt::Key_PageDown, {}, QString()), 0);
    EXPECT_EQ(typedBy(Qt::Key_F, Qt::AltModifier, u"f"_s), 0);
    EXPECT_EQ(typedBy(Qt::Key_PageDown, Qt::ControlModifier, QString()), 0);
}

TEST(KeyCodes, theThirdLevelOfALayoutTypes) {
    const auto altGr = Qt::ControlModifier | Qt::AltModifier;
    EXPECT_EQ(typedBy(Qt::Key_At, altGr, u"@"_s), 64);
}

TEST(KeyCodes, aShiftKeyIsDownWhileItsOwnPressIsTold) {
    const QKeyEvent release(QEvent::KeyRelease, Qt::Key_Control, Qt::ControlModifier);
    EXPECT_EQ(shiftOf(press(Qt::Key_Shift)), 1);
    EXPECT_EQ(shiftOf(press(Qt::Key_Control, Qt::ShiftModifier)), 3);
    EXPECT_EQ(shiftOf(press(Qt::Key_Alt, Qt::AltModifier)), 4);
    EXPECT_EQ(shiftOf(release), 0);
    EXPECT_EQ(shiftOf(press(Qt::Key_A, Qt::ShiftModifier)), 1);
}

TEST(KeyCodes, shiftAndButtonsAreBits) {
    EXPECT_EQ(shiftOf(Qt::NoModifier), 0);
    EXPECT_EQ(shiftOf(Qt::ShiftModifier), 1);
    EXPECT_EQ(shiftOf(Qt::ControlModifier), 2);
    EXPECT_EQ(shiftOf(Qt::AltModifier | Qt::ShiftModifier | Qt::KeypadModifier), 5);
    EXPECT_EQ(buttonOf(Qt::LeftButton), 1);
    EXPECT_EQ(buttonOf(Qt::RightButton), 2);
    EXPECT_EQ(buttonOf(Qt::MiddleButton), 4);
    EXPECT_EQ(buttonsOf(Qt::LeftButton | Qt::MiddleButton), 5);
}
