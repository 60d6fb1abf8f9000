// The border between events and the program's handlers.
#pragma once

#include <functional>

// Runs a handler so that nothing it throws crosses into the toolkit: an Error that it did not catch
// is shown as a message box with its text, and the program goes on; the end of the program stops
// the event loop, after which no handler runs any more.
void runHandler(const std::function<void()>& handler);

// Whether the program has been ended.
bool programHasEnded();

// For tests, which end the program many times in one process.
void forgetProgramEnd();
