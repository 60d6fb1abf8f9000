// Runs the command line inside the test.
#pragma once

#include <QString>
#include <QStringList>

struct ToolRun {
    int exitCode;
    QString out;
    QString errors;
};

ToolRun runTool(const QStringList& arguments);
