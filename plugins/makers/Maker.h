// The shape of a maker: something that makes one data file.
#pragma once

#include <QString>
#include <QStringList>

class Progress;

struct Order {
    QString path;          // of the data file, a path of the host in a folder that exists
    bool replaces = false; // a file stands there, and what its owner wrote into it goes on
};

struct MadeFile {
    qsizetype rows = 0;
    QStringList remarks; // what the user should know, a sentence each
};

class Maker {
public:
    Maker() = default;
    virtual ~Maker() = default;
    Q_DISABLE_COPY_MOVE(Maker)

    // Makes the file whole or not at all. Error with what is wrong; Interrupted (Interruption.h).
    virtual MadeFile make(const Order& order, Progress& progress) = 0;
};
