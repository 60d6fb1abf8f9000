// Runs the tool as a program of its own, as a shell starts it.
#pragma once

#include "plugins/ToolRun.h"

// Fails the test where the program does not end by itself.
ToolRun startTool(const QStringList& arguments);
