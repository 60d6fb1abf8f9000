// The state that the SWORD library keeps for the whole process.
#pragma once

// Keeps the library from searching the system for locales and configuration, and from complaining
// on the terminal about whatever it meets in a folder. To be called before any object of the
// library is made, since these go on using what they found; a second call does nothing.
void isolateSwordLibrary();
