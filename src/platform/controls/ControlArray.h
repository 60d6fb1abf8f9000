// Controls that share a name and a handler, addressed by an index with gaps allowed.
#pragma once

#include "basic/Error.h"
#include "controls/Event.h"

#include <map>
#include <memory>

template <class Control>
class ControlArray {
public:
    // Adds the control of an index; it is the array's from then on.
    Control& add(int index, std::unique_ptr<Control> control) {
        return *(m_controls[index] = std::move(control));
    }

    // Error::SubscriptOutOfRange for an index that the array lacks.
    Control& operator()(int index) const {
        const auto found = m_controls.find(index);
        if (found == m_controls.end())
            throwNoSuchControl(index);
        return *found->second;
    }

    void remove(int index) {
        if (m_controls.erase(index) == 0)
            throwNoSuchControl(index);
    }

    bool contains(int index) const { return m_controls.contains(index); }
    auto begin() const { return m_controls.begin(); }
    auto end() const { return m_controls.end(); }

private:
    [[noreturn]] static void throwNoSuchControl(int index) {
        throw Error(
            Error::SubscriptOutOfRange,
            QStringLiteral("Control array element %1 doesn't exist").arg(index));
    }

    std::map<int, std::unique_ptr<Control>> m_controls;
};

// Wires an event of every control of the array; the handler takes the index before the event's
// arguments.
template <class Control, class Owner, class... Arguments, class Window, class Handler>
void on(
    const ControlArray<Control>& array, Event<Arguments...> Owner::*event, Window* window,
    Handler handler) {
    for (const auto& [index, control] : array) {
        ((*control).*event).handleWith([window, handler, index = index](Arguments... arguments) {
            if constexpr (std::is_invocable_v<Handler, Window*, int, Arguments...>)
                std::invoke(handler, window, index, arguments...);
            else
                std::invoke(handler, window, index);
        });
    }
}
