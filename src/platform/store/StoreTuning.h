// What a test may change in the store, so that it need not wait: nothing here is for the program.
#pragma once

#include <chrono>

struct StoreTuning {
    // How long an operation waits for a file that another program holds.
    std::chrono::milliseconds busyTimeout{2000};

    // Whether a write waits until the disk has it. Without, a test can make many thousand writes.
    bool flushToDisk = true;
};

// Holds for the files that are opened from now on.
StoreTuning& storeTuning();
