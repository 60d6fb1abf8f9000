// An event of a control, and the one place where handlers are called.
#pragma once

#include "controls/Handler.h"

#include <concepts>
#include <functional>
#include <utility>

// Holds the one handler that a window gives to an event of a control.
template <class... Arguments>
class Event {
public:
    using Handler = std::function<void(Arguments...)>;

    void handleWith(Handler handler) { m_handler = std::move(handler); }

    // Runs the handler, if there is one. No error leaves it.
    void raise(Arguments... arguments) const {
        if (m_handler)
            runHandler([&] { m_handler(arguments...); });
    }

private:
    Handler m_handler;
};

// Wires an event of a control to a handler of a window:
//     on(txtNote, &TextBox::KeyUp, this, &frmMain::txtNote_KeyUp);
// The handler takes the event's arguments, or none.
template <class Control, class Owner, class... Arguments, class Window, class Handler>
requires std::derived_from<Control, Owner>
void on(Control& control, Event<Arguments...> Owner::*event, Window* window, Handler handler) {
    (control.*event).handleWith([window, handler](Arguments... arguments) {
        if constexpr (std::is_invocable_v<Handler, Window*, Arguments...>)
            std::invoke(handler, window, arguments...);
        else
            std::invoke(handler, window);
    });
}
