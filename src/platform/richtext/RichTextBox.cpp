#include "richtext/RichTextBox.h"

RichTextBox::RichTextBox(QWidget* parent, const ControlText& text)
    : Control(parent, text) {
    viewport()->setMouseTracking(true);
    connect(this, &RichTextPage::changed, this, [this] { Change.raise(); });
}

void RichTextBox::mousePressEvent(QMouseEvent* event) {
    m_clicking = event->button() == Qt::LeftButton;
    Control::mousePressEvent(event);
}

void RichTextBox::mouseReleaseEvent(QMouseEvent* event) {
    const bool inside = viewport()->rect().contains(event->position().toPoint());
    const bool clicked = m_clicking && inside && event->button() == Qt::LeftButton;
    m_clicking = m_clicking && event->button() != Qt::LeftButton;
    Control::mouseReleaseEvent(event);
    if (clicked)
        Click.raise();
}

void RichTextBox::mouseDoubleClickEvent(QMouseEvent* event) {
    m_clicking = false;
    Control::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton)
        DblClick.raise();
}
