// The rich text box of the windows: a page of formatted text with the events of a control.
#pragma once

#include "controls/Control.h"
#include "richtext/RichTextPage.h"

class RichTextBox : public Control<RichTextPage> {
public:
    // When the text has changed, by typing or by code; never for its formats alone.
    Event<> Change;
    // By the left button; a click comes behind its MouseUp.
    Event<> Click;
    Event<> DblClick;

    RichTextBox(QWidget* parent, const ControlText& text);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    bool m_clicking = false;
};
