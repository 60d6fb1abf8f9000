// The yield of long handlers.
#pragma once

// Lets pending paint, timer and system events through, never user input: no handler is entered
// and no window is unloaded under the feet of the handler that yields.
void DoEvents();
