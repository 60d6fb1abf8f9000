#include "Console.h"

#include <cstdio>
#include <ostream>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

void writeLine(std::ostream& stream, const QString& line) {
    stream << line.toLocal8Bit().constData() << std::endl;
}

bool standardErrorIsTerminal() {
#ifdef Q_OS_WIN
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(fileno(stderr)) != 0;
#endif
}
