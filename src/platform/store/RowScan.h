// Walks a table in row order and gives the numbers of the rows that pass: the one way in which the
// store looks at many rows. The engine calls back for each row; a walk that meets more rows than
// the file has room for, or leads back, as in a file damaged so that it would never end, is given
// up.
#pragma once

#include "store/RowFilter.h"
#include "store/Statement.h"

struct sqlite3;

enum class Direction { Forward, Backward };

// What a row must meet; without a filter or without a list it passes that test.
struct RowTest {
    const RowFilter* filter = nullptr;
    const std::vector<qint64>* listed = nullptr; // row numbers in ascending order
};

// The stretch to walk: the rows beyond one of them, or all.
struct RowStretch {
    Direction direction = Direction::Forward;
    std::optional<qint64> beyond;
};

class RowScan {
public:
    // What the test points to must outlive the scan. To be called in a transaction.
    RowScan(
        const std::shared_ptr<const Connection>& connection, const TableSchema& table,
        const RowTest& test, const RowStretch& stretch = {});

    // The number of the next row that passes; no value at the end.
    std::optional<qint64> next();

private:
    friend void registerRowScan(sqlite3* database);
    struct Callback;

    bool passes(sqlite3_value* const* values) const;

    std::shared_ptr<const Connection> m_connection;
    RowTest m_test;
    RowStretch m_left; // what lies beyond the last row given
    qint64 m_rowsLeft;
    Statement m_statement;
    StatementRun m_run;
};

// Makes the callback known to a connection of the engine.
void registerRowScan(sqlite3* database);
