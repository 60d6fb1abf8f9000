#include "store/RowScan.h"

#include "store/Connection.h"

#include <algorithm>
#include <sqlite3.h>

namespace {

constexpr char PointerType[] = "RowScan";

// The least that a row takes up in a file: its place, its size, its number and its head.
constexpr qint64 SmallestRow = 5;

enum Parameter { ScanParameter = 1, BeyondParameter, OnlyRowParameter };

// NOT INDEXED keeps the engine to the table's own order.
QByteArray scanSql(const TableSchema& table, const RowTest& test, const RowStretch& stretch) {
    const bool isForward = stretch.direction == Direction::Forward;
    QByteArray arguments = "?1";
    if (test.listed)
        arguments += ", " + table.rowNumber;
    if (test.filter) {
        for (const int column : test.filter->columns())
            arguments += ", " + quotedName(table.columns[static_cast<size_t>(column)].name);
    }
    QByteArray bounds;
    if (stretch.beyond)
        bounds += table.rowNumber + (isForward ? " > ?2 AND " : " < ?2 AND ");
    if (test.filter && test.filter->onlyRow())
        bounds += table.rowNumber + " = ?3 AND ";
    return "SELECT " + table.rowNumber + " FROM " + quotedName(table.name) + " NOT INDEXED WHERE "
           + bounds + "lumenvia_passes(" + arguments + ") ORDER BY " + table.rowNumber
           + (isForward ? "" : " DESC");
}

} // namespace

struct RowScan::Callback {
    // SQL function: lumenvia_passes(scan, [row number,] values of the filter's columns ...)
    static void passes(sqlite3_context* context, int count, sqlite3_value** values) {
        auto* const scan =
            count == 0 ? nullptr
                       : static_cast<RowScan*>(sqlite3_value_pointer(values[0], PointerType));
        if (!scan)
            sqlite3_result_error(context, "not for use in a file", -1);
        else if (--scan->m_rowsLeft < 0)
            sqlite3_result_error_code(context, SQLITE_CORRUPT);
        else
            sqlite3_result_int(context, scan->passes(values + 1));
    }
};

RowScan::RowScan(
    const std::shared_ptr<const Connection>& connection, const TableSchema& table,
    const RowTest& test, const RowStretch& stretch)
    : m_connection(connection)
    , m_test(test)
    , m_left(stretch)
    , m_rowsLeft(connection->fileSize() / SmallestRow)
    , m_statement(connection, scanSql(table, test, stretch))
    , m_run(m_statement) {
    m_statement.bindPointer(ScanParameter, this, PointerType);
    if (stretch.beyond)
        m_statement.bind(BeyondParameter, *stretch.beyond);
    if (test.filter && test.filter->onlyRow())
        m_statement.bind(OnlyRowParameter, *test.filter->onlyRow());
}

std::optional<qint64> RowScan::next() {
    if (!m_statement.step())
        return std::nullopt;
    const qint64 number = m_statement.integer(0);
    const bool isForward = m_left.direction == Direction::Forward;
    if (m_left.beyond && (isForward ? number <= *m_left.beyond : number >= *m_left.beyond))
        m_connection->failAsDamaged();
    m_left.beyond = number;
    return number;
}

bool RowScan::passes(sqlite3_value* const* values) const {
    if (m_test.listed) {
        const qint64 number = sqlite3_value_int64(*values++);
        if (!std::binary_search(m_test.listed->begin(), m_test.listed->end(), number))
            return false;
    }
    return !m_test.filter || m_test.filter->isMetBy(values);
}

// Only our own statements may call it, never the schema of a file.
void registerRowScan(sqlite3* database) {
    sqlite3_create_function_v2(
        database, "lumenvia_passes", -1, SQLITE_UTF8 | SQLITE_DIRECTONLY, nullptr,
        &RowScan::Callback::passes, nullptr, nullptr, nullptr);
}
