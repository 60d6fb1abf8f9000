#include "plugins/ToolRun.h"

#include "CommandLine.h"

#include <sstream>

ToolRun runTool(const QStringList& arguments) {
    std::ostringstream out;
    std::ostringstream errors;
    Console console{out, errors};
    const int exitCode = runCommandLine(arguments, console);
    return {exitCode, QString::fromStdString(out.str()), QString::fromStdString(errors.str())};
}
