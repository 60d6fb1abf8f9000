#include "controls/SendKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QWidget>

void sendKey(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    const QPointer<QWidget> target = QApplication::focusWidget();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers);
        if (target)
            QApplication::sendEvent(target, &event);
    }
}
