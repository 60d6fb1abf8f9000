// The strip at the foot of a window that can be pulled larger.
#pragma once

#include "controls/Control.h"

#include <QStatusBar>

class StatusBar : public Control<QStatusBar> {
public:
    using Control::Control;
};
