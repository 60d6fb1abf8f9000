#include "Interruption.h"

#include <atomic>
#include <csignal>

namespace {

std::atomic<bool> interruptRequested = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler sets it");

extern "C" void requestInterrupt(int) {
    interruptRequested = true;
}

} // namespace

InterruptHandler::InterruptHandler() {
    interruptRequested = false;
    m_interrupt = std::signal(SIGINT, requestInterrupt);
    m_terminate = std::signal(SIGTERM, requestInterrupt);
}

InterruptHandler::~InterruptHandler() {
    std::signal(SIGINT, m_interrupt);
    std::signal(SIGTERM, m_terminate);
}

void checkInterrupt() {
    if (interruptRequested)
        throw Interrupted();
}
