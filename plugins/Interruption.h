// Ctrl+C, or a terminal that is closed: work in hand is dropped at the next verse, and nothing of
// it stays.
#pragma once

#include <array>
#include <csignal>
#include <exception>

class Interrupted final : public std::exception {
public:
    const char* what() const noexcept override { return "interrupted"; }
};

// While it lives, a signal to interrupt, terminate or hang up is noted instead of ending the
// program. One that was ignored stays ignored.
class InterruptHandler {
public:
    InterruptHandler();
    ~InterruptHandler();
    InterruptHandler(const InterruptHandler&) = delete;
    InterruptHandler& operator=(const InterruptHandler&) = delete;

private:
    using SignalHandler = void (*)(int);
    static constexpr std::array Signals = {
        SIGINT,
        SIGTERM,
#ifdef SIGHUP
        SIGHUP,
#endif
    };
    std::array<SignalHandler, Signals.size()> m_before;
};

// Throws Interrupted once a signal has come.
void checkInterrupt();
