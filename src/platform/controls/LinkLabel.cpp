#include "controls/LinkLabel.h"

using namespace Qt::StringLiterals;

LinkLabel::LinkLabel(QWidget* parent, const ControlText& text)
    : Control(parent, text) {
    setTextFormat(Qt::RichText);
    setMargin(2); // room for the mark of the focus
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setCaption(text.caption.toString());
    connect(this, &QLabel::linkActivated, this, [this] { Click.raise(); });
}

void LinkLabel::setCaption(const QString& caption) {
    m_caption = caption;
    setText(u"<a href=\"#\">"_s + caption.toHtmlEscaped() + u"</a>"_s);
    setAccessibleName(caption);
}

// The text is one link, so it takes the focus at once and not at the next Tab.
void LinkLabel::focusInEvent(QFocusEvent* event) {
    Control::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        focusNextPrevChild(true);
}
