#include "desktop/KeyCodes.h"

#include <QKeyEvent>
#include <algorithm>
#include <iterator>

namespace {

struct Row {
    int key;
    int code;
};

constexpr Row controlKeys[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},          {Qt::Key_Backtab, 9}, {Qt::Key_Clear, 12},
    {Qt::Key_Return, 13},   {Qt::Key_Enter, 13},       {Qt::Key_Shift, 16},  {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},      {Qt::Key_AltGr, 18},       {Qt::Key_Pause, 19},  {Qt::Key_CapsLock, 20},
    {Qt::Key_Escape, 27},   {Qt::Key_Space, 32},       {Qt::Key_PageUp, 33}, {Qt::Key_PageDown, 34},
    {Qt::Key_End, 35},      {Qt::Key_Home, 36},        {Qt::Key_Left, 37},   {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},    {Qt::Key_Down, 40},        {Qt::Key_Print, 44},  {Qt::Key_Insert, 45},
    {Qt::Key_Delete, 46},   {Qt::Key_Help, 47},        {Qt::Key_Meta, 91},   {Qt::Key_Menu, 93},
    {Qt::Key_NumLock, 144}, {Qt::Key_ScrollLock, 145},
};

// Which characters share a key is the keyboard's affair; these are the places of the United States'
// layout, for which the codes were made.
constexpr Row signKeys[] = {
    {u')', 48},  {u'!', 49},  {u'@', 50},   {u'#', 51},  {u'$', 52},  {u'%', 53},   {u'^', 54},
    {u'&', 55},  {u'*', 56},  {u'(', 57},   {u';', 186}, {u':', 186}, {u'=', 187},  {u'+', 187},
    {u',', 188}, {u'<', 188}, {u'-', 189},  {u'_', 189}, {u'.', 190}, {u'>', 190},  {u'/', 191},
    {u'?', 191}, {u'`', 192}, {u'~', 192},  {u'[', 219}, {u'{', 219}, {u'\\', 220}, {u'|', 220},
    {u']', 221}, {u'}', 221}, {u'\'', 222}, {u'"', 222},
};

constexpr Row keypadKeys[] = {
    {u'*', 106}, {u'+', 107}, {u'-', 109}, {u'.', 110}, {u',', 110}, {u'/', 111},
};

// The control keys that type a character, which is also their code.
constexpr int typingCodes[] = {8, 9, 13, 27};

constexpr int keypadZero = 96;
constexpr int firstFunctionKey = 112;
constexpr int lastFunctionKey = 135;

template <size_t Size>
int lookUp(const Row (&rows)[Size], int key) {
    for (const Row& row : rows) {
        if (row.key == key)
            return row.code;
    }
    return 0;
}

bool isBetween(int value, int first, int last) {
    return value >= first && value <= last;
}

int keypadCode(int key) {
    return isBetween(key, Qt::Key_0, Qt::Key_9) ? key - Qt::Key_0 + keypadZero
                                                : lookUp(keypadKeys, key);
}

// The printable character at the head of the key's text, or 0.
char32_t printableOf(const QKeyEvent& event) {
    const QList<uint> characters = event.text().toUcs4();
    const bool printable = !characters.isEmpty() && QChar::isPrint(characters.constFirst());
    return printable ? characters.constFirst() : 0;
}

Qt::KeyboardModifier modifierOf(int key) {
    switch (key) {
    case Qt::Key_Shift:
        return Qt::ShiftModifier;
    case Qt::Key_Control:
        return Qt::ControlModifier;
    case Qt::Key_Alt:
        return Qt::AltModifier;
    default:
        return Qt::NoModifier;
    }
}

} // namespace

int keyCodeOf(const QKeyEvent& event) {
    const int key = event.key();
    if (isBetween(key, Qt::Key_A, Qt::Key_Z))
        return key;
    if (event.modifiers() & Qt::KeypadModifier) {
        if (const int code = keypadCode(key))
            return code;
    }
    if (isBetween(key, Qt::Key_0, Qt::Key_9))
        return key;
    const int functionKey = key - Qt::Key_F1 + firstFunctionKey;
    if (isBetween(functionKey, firstFunctionKey, lastFunctionKey))
        return functionKey;
    if (const int code = lookUp(controlKeys, key))
        return code;
    if (const int code = lookUp(signKeys, key))
        return code;
    return printableOf(event) != 0 ? CharacterKey : 0;
}

int characterOf(const QKeyEvent& event) {
    const bool control = event.modifiers() & Qt::ControlModifier;
    const bool alt = event.modifiers() & Qt::AltModifier;
    if (alt && !control)
        return 0;
    const int code = lookUp(controlKeys, event.key());
    if (std::ranges::find(typingCodes, code) != std::end(typingCodes))
        return code;
    // Both together are the other name of the key that types a layout's third level.
    if (control && !alt)
        return isBetween(event.key(), Qt::Key_A, Qt::Key_Z) ? event.key() - Qt::Key_A + 1 : 0;
    return int(printableOf(event));
}

int physicalKeyOf(const QKeyEvent& event) {
    return event.nativeScanCode() != 0 ? int(event.nativeScanCode()) : event.key();
}

int shiftOf(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? 1 : 0) + (modifiers & Qt::ControlModifier ? 2 : 0)
           + (modifiers & Qt::AltModifier ? 4 : 0);
}

int shiftOf(const QKeyEvent& event) {
    const Qt::KeyboardModifier own = modifierOf(event.key());
    const bool pressed = event.type() == QEvent::KeyPress;
    return shiftOf(event.modifiers().setFlag(own, pressed));
}

int buttonOf(Qt::MouseButton button) {
    return buttonsOf(button);
}

int buttonsOf(Qt::MouseButtons buttons) {
    return (buttons & Qt::LeftButton ? 1 : 0) + (buttons & Qt::RightButton ? 2 : 0)
           + (buttons & Qt::MiddleButton ? 4 : 0);
}
