// Where the focus of a window is at first, and where the tab key takes it.
#pragma once

#include <QCoreApplication>
#include <QStringList>
#include <QWidget>

// The control that has the focus once a window is the active one.
inline QString firstFocus(QWidget& window) {
    window.activateWindow();
    QCoreApplication::processEvents();
    return window.focusWidget() ? window.focusWidget()->objectName() : QString();
}

// The visible controls from one on, all around.
inline QStringList focusOrder(QWidget& first) {
    QStringList order;
    QWidget* widget = &first;
    do {
        if (widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) != 0)
            order.append(widget->objectName());
        widget = widget->nextInFocusChain();
    } while (widget != &first);
    return order;
}
