#include "controls/Control.h"

#include "controls/Form.h"

using namespace Qt::StringLiterals;

namespace {

// A caption without the marks of access keys.
QString plainCaption(QStringView text) {
    QString caption = text.toString();
    caption.replace(u"&&"_s, u"\x1"_s);
    caption.remove(u'&');
    return caption.replace(u'\x1', u'&');
}

} // namespace

void nameControl(QWidget& widget, const ControlText& text) {
    widget.setObjectName(text.name.toString());
    widget.setToolTip(text.toolTip.toString());
    widget.setAccessibleName(plainCaption(text.caption.isEmpty() ? text.toolTip : text.caption));
}

void focusReached(QWidget& widget, FocusListener& listener) {
    if (auto* form = qobject_cast<Form*>(widget.window()))
        form->moveFocus(widget, listener);
}
