#include "controls/CommandButton.h"

CommandButton::CommandButton(QWidget* parent, const ControlText& text)
    : Button(parent, text) {
    setText(text.caption.toString());
    // The toolkit would press the first button of a window when Enter is typed in a field.
    setAutoDefault(false);
}

PictureButton::PictureButton(QWidget* parent, const ControlText& text, const QString& pictureFile)
    : Button(parent, text) {
    setIcon(QIcon(pictureFile));
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
}
