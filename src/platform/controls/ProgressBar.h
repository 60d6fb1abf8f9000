// How far a long task has come, in percent.
#pragma once

#include "controls/Control.h"

#include <QProgressBar>

class ProgressBar : public Control<QProgressBar> {
public:
    ProgressBar(QWidget* parent, const ControlText& text)
        : Control(parent, text) {
        setRange(0, 100);
    }

    int Value() const { return value(); }
};
