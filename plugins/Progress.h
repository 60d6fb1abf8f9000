// How far the making of a file has come: a bar on a terminal, nothing elsewhere. It is also where
// long work hears of an interrupt.
#pragma once

#include <QString>

struct Console;

class Progress {
public:
    Progress(Console& console, QString label);

    // Takes the bar away.
    ~Progress();
    Q_DISABLE_COPY_MOVE(Progress)

    // The part that is done, 0 to 1. Throws Interrupted once an interrupt has come.
    void advance(double fraction);

private:
    Console& m_console;
    QString m_label;
    int m_percent = -1; // as drawn
};
