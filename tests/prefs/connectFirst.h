// What the user is told before each web page.
#pragma once

#include "desktop/Desktop.h"

inline const Message connectFirst{
    QStringLiteral("Make sure you're connected to the Internet."), QStringLiteral("Lumenvia"),
    MessageIcon::Information, MessageButtons::Ok};
