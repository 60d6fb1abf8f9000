// A second program that a test runs beside itself, and that reports line by line.
#pragma once

#include <QProcess>

class OtherProgram {
public:
    // `program` is a path, or a name in the folder of the test.
    OtherProgram(const QString& program, const QStringList& arguments);

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
