// A frame with a heading around controls that belong together.
#pragma once

#include "controls/Control.h"

#include <QGroupBox>

class Frame : public Control<QGroupBox> {
public:
    Frame(QWidget* parent, const ControlText& text)
        : Control(parent, text) {
        setTitle(text.caption.toString());
    }

    QString Caption() const { return title(); }
};
