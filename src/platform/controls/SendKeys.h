// Types keys for the user.
#pragma once

#include <Qt>

// Presses and releases a key in the control that has the focus, as if the user had; returns when
// the key is processed. Without a focus nothing happens.
void sendKey(Qt::Key key, Qt::KeyboardModifiers modifiers);
