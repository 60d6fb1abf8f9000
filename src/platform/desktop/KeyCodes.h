// Keys and mouse buttons in the program's own codes: the classic virtual key codes, the character a
// key types, 1 for Shift, 2 for Ctrl and 4 for Alt, 1, 2 and 4 for the left, right and middle
// button.
#pragma once

#include <Qt>

class QKeyEvent;

// The code of a key, whatever the shift keys: 33 for Page Up, 65 for A, 112 for F1. A key that
// types a character but has no code of its own (of a script without Latin letters, say) gives
// CharacterKey; a key that does neither gives 0.
inline constexpr int CharacterKey = 231;
int keyCodeOf(const QKeyEvent& event);

// The character that a key types: its code point, 13 for Enter, 8 for Backspace, 27 for Escape, 9
// for Tab, 1 to 26 for Ctrl with a letter. 0 if it types none.
int characterOf(const QKeyEvent& event);

// The same for the press and the release of one key, also when the shift keys changed in between.
int physicalKeyOf(const QKeyEvent& event);

// A combination is the sum of its keys or buttons.
int shiftOf(Qt::KeyboardModifiers modifiers);

// The same for a key event, in which systems differ on whether a shift key counts at its own press
// and release: it is down at its press, and up at its release.
int shiftOf(const QKeyEvent& event);

int buttonOf(Qt::MouseButton button);
int buttonsOf(Qt::MouseButtons buttons);
