// The two kinds of buttons: one with a caption, and one with a picture for a strip of buttons.
#pragma once

#include "controls/Button.h"

#include <QPushButton>
#include <QToolButton>

class CommandButton : public Button<QPushButton> {
public:
    CommandButton(QWidget* parent, const ControlText& text);
};

// Shows its picture alone; its tool tip is its name for a screen reader.
class PictureButton : public Button<QToolButton> {
public:
    PictureButton(QWidget* parent, const ControlText& text, const QString& pictureFile);
};
