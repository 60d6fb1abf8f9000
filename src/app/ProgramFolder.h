// The folder that holds the user's own copies of all data files.
#pragma once

// Makes the folder, and copies into it the works that were installed with the program and that it
// lacks, so that every user owns a writable copy of each, notes included. What cannot be made is
// left to the program, which tells the user what it misses.
void prepareProgramFolder();
