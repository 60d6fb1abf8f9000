// Where the program writes to.
#pragma once

#include <QString>
#include <iosfwd>

struct Console {
    std::ostream& out;
    std::ostream& errors;
    bool isTerminal = false; // `errors` is one, so that a bar can be drawn there
};

// One line. It is on its way when the call returns.
void writeLine(std::ostream& stream, const QString& line);

// Whether the standard error stream is a terminal.
bool standardErrorIsTerminal();
