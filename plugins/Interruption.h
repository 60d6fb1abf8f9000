// Ctrl+C: work in hand is dropped at the next verse, and nothing of it stays.
#pragma once

#include <exception>

class Interrupted final : public std::exception {
public:
    const char* what() const noexcept override { return "interrupted"; }
};

// While it lives, an interrupt or termination signal is noted instead of ending the program.
class InterruptHandler {
public:
    InterruptHandler();
    ~InterruptHandler();
    InterruptHandler(const InterruptHandler&) = delete;
    InterruptHandler& operator=(const InterruptHandler&) = delete;

private:
    using SignalHandler = void (*)(int);
    SignalHandler m_interrupt;
    SignalHandler m_terminate;
};

// Throws Interrupted once a signal has come.
void checkInterrupt();
