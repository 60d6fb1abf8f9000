#include "controls/Handler.h"

#include "basic/Error.h"
#include "desktop/Desktop.h"

#include <QCoreApplication>

namespace {

bool ended = false;

} // namespace

void runHandler(const std::function<void()>& handler) {
    if (ended)
        return;
    try {
        handler();
    } catch (const ProgramEnd&) {
        ended = true;
        QCoreApplication::exit();
    } catch (const Error& error) {
        MsgBox(error.text(), MessageIcon::Exclamation);
    } catch (const std::exception& error) {
        MsgBox(QString::fromLocal8Bit(error.what()), MessageIcon::Stop);
    }
}

bool programHasEnded() {
    return ended;
}

void forgetProgramEnd() {
    ended = false;
}
