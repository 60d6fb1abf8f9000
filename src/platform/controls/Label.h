// A line of text beside or above other controls.
#pragma once

#include "controls/Control.h"

#include <QLabel>

class Label : public Control<QLabel> {
public:
    Label(QWidget* parent, const ControlText& text)
        : Control(parent, text) {
        setTextFormat(Qt::PlainText);
        setText(text.caption.toString());
    }

    QString Caption() const { return text(); }
    void setCaption(const QString& caption) {
        if (caption != text())
            setText(caption);
    }
};
