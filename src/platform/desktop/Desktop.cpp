#include "desktop/Desktop.h"

using namespace Qt::StringLiterals;

namespace {

Desktop* currentDesktop = nullptr;

} // namespace

Desktop& desktop() {
    Q_ASSERT(currentDesktop);
    return *currentDesktop;
}

void setDesktop(Desktop* desktop) {
    currentDesktop = desktop;
}

Answer MsgBox(const QString& text, MessageIcon icon, const QString& title, MessageButtons buttons) {
    return desktop().showMessage({text, title.isNull() ? u"Lumenvia"_s : title, icon, buttons});
}
