// Reads a table that the project keeps as text: UTF-8, a row a line, its fields parted by one tab.
// Empty lines and lines that begin with "#" are skipped.
#pragma once

#include "basic/Error.h"

#include <QFile>
#include <QStringList>
#include <optional>

class DataLines {
public:
    // Error::FileNotFound for a file that cannot be read.
    DataLines(const QString& path, qsizetype fieldCount);

    // The fields of the next row, trimmed; nothing behind the last one. Error::InvalidPropertyValue
    // with file and line for a row of another number of fields or with an empty one.
    std::optional<QStringList> next();

    // An error about the row that was read last.
    Error lineError(const QString& reason) const;

private:
    QFile m_file;
    qsizetype m_fieldCount;
    int m_line = 0;
};
