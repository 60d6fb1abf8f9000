// How a tool window is built: the column of its controls, the buttons at its foot, in the order and
// at the side that the platform wants, and the button that Enter presses.
#pragma once

#include "controls/CommandButton.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

class Form;

// Device-independent pixels around the controls of a window, and between them.
inline constexpr int WindowMargin = 12;
inline constexpr int WindowSpacing = 8;

// Gives a window the column that holds its controls.
QVBoxLayout* makeWindowColumn(Form& window);

class ButtonRow final : public QDialogButtonBox {
public:
    // `accept` does what the window is for, `cancel` leaves it without; either may be missing.
    ButtonRow(CommandButton* accept, CommandButton* cancel);

    // A button that does something beside.
    void addOther(CommandButton& button);
};

// Enter presses the button wherever in the window no control wants the key for itself; another
// button with the focus is pressed instead. A disabled button is not pressed.
void setDefaultButton(Form& window, CommandButton& button);
