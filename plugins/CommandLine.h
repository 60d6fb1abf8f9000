// The command line of lumenvia-plugins.
#pragma once

#include "Console.h"

#include <QStringList>

enum ExitCode {
    AllMade = 0,
    SomethingNotMade = 1,
    WrongUse = 2,
};

// Does what the arguments (without the program's name) ask for.
ExitCode runCommandLine(const QStringList& arguments, Console& console);
