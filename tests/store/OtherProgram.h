// Runs the helper program of these tests.
#pragma once

#include "StoreFixture.h"

#include <QProcess>

class OtherProgram {
public:
    explicit OtherProgram(const QStringList& arguments);

    // Kills it if it still runs.
    ~OtherProgram();

    // Waits for the next line it reports; without line end, and empty when it has ended.
    QString readLine();

    // Waits for its end; whether it ended without an error.
    bool endsWell();

    // Stops it at once, wherever it stands; the lines it had reported, with those read before.
    QStringList kill();

private:
    QProcess m_process;
    QStringList m_lines;
};
