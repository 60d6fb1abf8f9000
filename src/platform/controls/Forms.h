// The program's windows by their class: form<frmMain>() is the window of that name, made on first
// use, and after it was unloaded a new one.
#pragma once

#include "controls/Form.h"

#include <QPointer>

namespace forms {

template <class Window>
QPointer<Window>& slot() {
    static QPointer<Window> window;
    return window;
}

// Keeps a made form until it is unloaded.
void keep(Form& form);

// Takes every form away at once, without unloading it.
void discardAll();

} // namespace forms

template <class Window>
Window& form() {
    QPointer<Window>& window = forms::slot<Window>();
    if (!window) {
        window = new Window;
        forms::keep(*window);
        window->whenUnloaded([] { forms::slot<Window>().clear(); });
    }
    return *window;
}

// Whether the window is there and loaded; asks without making it.
template <class Window>
bool isLoaded() {
    const QPointer<Window>& window = forms::slot<Window>();
    return window && window->isLoaded();
}
