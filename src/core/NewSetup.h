// The entry of the program.
#pragma once

// Builds the shared tables, brings up the main window with a translation and its tree, and shows
// the first page, Matthew 1:1. Everything after that is driven by events.
void Main();
