// One of several choices: the option buttons of one frame exclude each other.
#pragma once

#include "controls/Control.h"

#include <QRadioButton>

class OptionButton : public Control<QRadioButton> {
public:
    // When the button becomes selected, by the user or by code; never when it is selected already.
    Event<> Click;

    OptionButton(QWidget* parent, const ControlText& text);

    QString Caption() const { return text(); }
    void setCaption(const QString& caption);

    bool Value() const { return isChecked(); }

    // Selecting it takes the selection from the others.
    void setValue(bool selected) { setChecked(selected); }
};
