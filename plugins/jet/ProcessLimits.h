// Bounds what this process may take, so that a damaged file cannot take the machine.
#pragma once

// Memory and processor time, generous for every file that a user can own. What goes beyond ends the
// process. Call it once, before the file is read, in a process that does nothing else.
void limitThisProcess();
