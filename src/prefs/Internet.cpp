#include "prefs/Internet.h"

#include "basic/Error.h"
#include "desktop/Desktop.h"

using namespace Qt::StringLiterals;

bool IsConnected() {
    return true;
}

void OpenUrl(const QString& Url) {
    if (!Url.contains(u"mailto"_s))
        MsgBox(u"Make sure you're connected to the Internet."_s, MessageIcon::Information);
    if (!IsConnected()) {
        MsgBox(
            u"Make sure you're connected to the Internet.\r\n\r\nI'll try to connect for you, but "
            u"you may need to connect and try this command again."_s,
            MessageIcon::Information);
    }
    attempt([&] { desktop().openLink(Url); });
}
