#include "controls/CheckBox.h"

CheckBox::CheckBox(QWidget* parent, const ControlText& text)
    : Control(parent, text) {
    setText(text.caption.toString());
    connect(this, &QCheckBox::toggled, this, [this] { Click.raise(); });
}
