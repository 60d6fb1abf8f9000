#include "Interruption.h"

#include <atomic>

namespace {

std::atomic<bool> interruptRequested = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler sets it");

extern "C" void requestInterrupt(int) {
    interruptRequested = true;
}

} // namespace

InterruptHandler::InterruptHandler() {
    interruptRequested = false;
    for (std::size_t at = 0; at < Signals.size(); ++at) {
        m_before[at] = std::signal(Signals[at], requestInterrupt);
        if (m_before[at] == SIG_IGN)
            std::signal(Signals[at], SIG_IGN);
    }
}

InterruptHandler::~InterruptHandler() {
    for (std::size_t at = 0; at < Signals.size(); ++at)
        std::signal(Signals[at], m_before[at]);
}

void checkInterrupt() {
    if (interruptRequested)
        throw Interrupted();
}
