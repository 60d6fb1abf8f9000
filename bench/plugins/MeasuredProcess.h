// Runs a program to its end and tells what it took.
#pragma once

#include <QStringList>

struct Usage {
    bool hasSucceeded = false;
    double seconds = 0;    // from start to end
    double peakMemory = 0; // MiB resident
};

Usage runMeasured(const QString& program, const QStringList& arguments);
