#include "controls/OptionButton.h"

OptionButton::OptionButton(QWidget* parent, const ControlText& text)
    : Control(parent, text) {
    setText(text.caption.toString());
    connect(this, &QRadioButton::toggled, this, [this](bool selected) {
        if (selected)
            Click.raise();
    });
}

void OptionButton::setCaption(const QString& caption) {
    const QString name = objectName();
    const QString tip = toolTip();
    setText(caption);
    nameControl(*this, {name, caption, tip});
}
