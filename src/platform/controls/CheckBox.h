// A choice that is on or off.
#pragma once

#include "controls/Control.h"

#include <QCheckBox>

class CheckBox : public Control<QCheckBox> {
public:
    // When it changes, by the user or by code.
    Event<> Click;

    CheckBox(QWidget* parent, const ControlText& text);

    QString Caption() const { return text(); }

    bool Value() const { return isChecked(); }
    void setValue(bool checked) { setChecked(checked); }
};
