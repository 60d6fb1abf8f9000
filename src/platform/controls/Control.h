// What all controls share: the events of keyboard, mouse and focus in the program's vocabulary, and
// the names by which a window, a screen reader and a test know them.
#pragma once

#include "controls/Event.h"
#include "desktop/KeyCodes.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSet>
#include <QWidget>

// The key code under which text composed by an input method is reported.
inline constexpr int InputMethodKey = 229;

// The names of a control: its name in the program, the text it shows, and its tool tip.
struct ControlText {
    QStringView name;
    QStringView caption = {};
    QStringView toolTip = {};
};

// Gives a widget its names; the accessible name is the caption, or else the tool tip.
void nameControl(QWidget& widget, const ControlText& text);

// Whether a font can have this size in points.
constexpr bool isFontSize(double points) {
    return points > 0 && points <= 1638;
}

// Told by controls when the focus reaches them; the window of the control raises LostFocus and
// GotFocus from it. A message box or another program that takes and gives back the focus of one
// control raises neither.
class FocusListener {
public:
    virtual ~FocusListener() = default;
    virtual void raiseGotFocus() = 0;
    virtual void raiseLostFocus() = 0;
};
void focusReached(QWidget& widget, FocusListener& listener);

template <class Base>
class Control : public Base, public FocusListener {
public:
    // Key codes and shift bits are those of KeyCodes.h. A handler that sets the code to 0 drops
    // the key. KeyUp comes after the text has changed, and only for a key that was pressed here.
    Event<int&, int> KeyDown;
    Event<int&> KeyPress;
    Event<int&, int> KeyUp;
    // Button 1 left, 2 right, 4 middle; shift as for keys; the place in the control.
    Event<int, int, int, int> MouseDown;
    Event<int, int, int, int> MouseUp;
    Event<int, int, int, int> MouseMove;
    Event<> GotFocus;
    Event<> LostFocus;

    Control(QWidget* parent, const ControlText& text)
        : Base(parent) {
        nameControl(*this, text);
        this->setMouseTracking(true);
    }

    bool Enabled() const { return this->isEnabled(); }
    void setEnabled(bool enabled) { Base::setEnabled(enabled); }
    bool Visible() const { return !this->isHidden(); }
    // Whether a key is down that was pressed here.
    bool isKeyPressed() const { return !m_pressedKeys.isEmpty(); }

    QString ToolTipText() const { return this->toolTip(); }
    void SetFocus() { this->setFocus(Qt::OtherFocusReason); }

protected:
    void raiseGotFocus() override { GotFocus.raise(); }
    void raiseLostFocus() override { LostFocus.raise(); }

    void focusInEvent(QFocusEvent* event) override {
        Base::focusInEvent(event);
        focusReached(*this, *this);
    }

    void focusOutEvent(QFocusEvent* event) override {
        Base::focusOutEvent(event);
        // Keys that are released elsewhere were never pressed here.
        m_pressedKeys.clear();
    }

    void keyPressEvent(QKeyEvent* event) override {
        m_pressedKeys.insert(physicalKeyOf(*event));
        const int pressed = keyCodeOf(*event);
        int code = pressed;
        if (pressed != 0)
            KeyDown.raise(code, shiftOf(*event));
        if (code != pressed && code == 0)
            return;
        int character = characterOf(*event);
        const int typed = character;
        if (typed != 0)
            KeyPress.raise(character);
        if (typed == 0 || character == typed)
            Base::keyPressEvent(event);
        else if (character != 0)
            pressOther(*event, character);
    }

    void keyReleaseEvent(QKeyEvent* event) override {
        Base::keyReleaseEvent(event);
        if (event->isAutoRepeat() || !m_pressedKeys.remove(physicalKeyOf(*event)))
            return;
        int code = keyCodeOf(*event);
        KeyUp.raise(code, shiftOf(*event));
    }

    void inputMethodEvent(QInputMethodEvent* event) override {
        Base::inputMethodEvent(event);
        // Text that an input method composes comes without keys of its own.
        int code = InputMethodKey;
        if (!event->commitString().isEmpty())
            KeyUp.raise(code, 0);
    }

    void mousePressEvent(QMouseEvent* event) override {
        Base::mousePressEvent(event);
        raiseMouse(MouseDown, *event, buttonOf(event->button()));
    }

    void mouseReleaseEvent(QMouseEvent* event) override {
        Base::mouseReleaseEvent(event);
        raiseMouse(MouseUp, *event, buttonOf(event->button()));
    }

    void mouseMoveEvent(QMouseEvent* event) override {
        Base::mouseMoveEvent(event);
        raiseMouse(MouseMove, *event, buttonsOf(event->buttons()));
    }

private:
    using MouseEvent = Event<int, int, int, int>;

    void raiseMouse(const MouseEvent& mouse, const QMouseEvent& event, int button) {
        const QPoint place = event.position().toPoint();
        mouse.raise(button, shiftOf(event.modifiers()), place.x(), place.y());
    }

    // The handler of KeyPress has put another character in the place of the typed one.
    void pressOther(const QKeyEvent& event, int character) {
        const auto codePoint = static_cast<char32_t>(character);
        QKeyEvent other(event.type(), 0, Qt::NoModifier, QString::fromUcs4(&codePoint, 1));
        Base::keyPressEvent(&other);
    }

    QSet<int> m_pressedKeys;
};
