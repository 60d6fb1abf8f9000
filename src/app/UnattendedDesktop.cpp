#include "app/UnattendedDesktop.h"

#include <cstdio>

Answer UnattendedDesktop::showMessage(const Message& message) {
    std::fprintf(stderr, "%s: %s\n", qPrintable(message.title), qPrintable(message.text));
    return message.buttons == MessageButtons::YesNo ? Answer::No : Answer::Ok;
}
