// Buttons that press: by mouse, keyboard or code, one way leads to their Click.
#pragma once

#include "controls/Control.h"

#include <QAbstractButton>

template <class Base>
class Button : public Control<Base> {
public:
    Event<> Click;

    Button(QWidget* parent, const ControlText& text)
        : Control<Base>(parent, text) {
        QObject::connect(this, &QAbstractButton::clicked, this, [this] { Click.raise(); });
    }

    QString Caption() const { return this->text(); }

    // Setting it to pressed runs Click; the button springs back. Code may press a button that is
    // disabled or hidden from the user.
    void setValue(bool pressed) {
        if (pressed)
            Click.raise();
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            this->click();
        else
            Control<Base>::keyPressEvent(event);
    }
};
