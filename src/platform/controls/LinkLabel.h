// A line of text that is clicked like a link, or reached by Tab and followed by Enter.
#pragma once

#include "controls/Control.h"

#include <QLabel>

class LinkLabel : public Control<QLabel> {
public:
    Event<> Click;

    LinkLabel(QWidget* parent, const ControlText& text);

    QString Caption() const { return m_caption; }
    void setCaption(const QString& caption);

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    QString m_caption;
};
