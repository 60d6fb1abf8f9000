#include "basic/DoEvents.h"

#include <QCoreApplication>

void DoEvents() {
    if (QCoreApplication::instance())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}
