// Random damage to a file, reproducible by its number.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

// Bytes of the file that are no longer what they were.
struct ChangedBytes {
    qsizetype offset;
    qsizetype size;
};

struct Mutation {
    QString kind;
    QByteArray bytes;
    QList<ChangedBytes> changes;
};

Mutation mutate(const QByteArray& good, int pageSize, unsigned seed);
