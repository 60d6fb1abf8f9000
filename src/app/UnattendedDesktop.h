// The desktop of a run that nobody watches: messages go to the error output instead of waiting for
// a hand.
#pragma once

#include "desktop/QtDesktop.h"

class UnattendedDesktop final : public QtDesktop {
public:
    // Prints title and text, and answers what closing the box would.
    Answer showMessage(const Message& message) override;
};
