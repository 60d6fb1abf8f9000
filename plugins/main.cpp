// lumenvia-plugins: makes the data files that Lumenvia reads.
#include "CommandLine.h"
#include "Interruption.h"
#include "jet/ProcessLimits.h"

#include <QCoreApplication>
#include <iostream>

int main(int argc, char** argv) {
    limitThisProcess();
    const QCoreApplication application(argc, argv);
    const InterruptHandler interrupts;
    Console console{std::cout, std::cerr, standardErrorIsTerminal()};
    return runCommandLine(QCoreApplication::arguments().mid(1), console);
}
