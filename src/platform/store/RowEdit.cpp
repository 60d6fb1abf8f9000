#include "store/RowEdit.h"

#include "store/Connection.h"

#include <algorithm>
#include <sqlite3.h>

namespace {

int bindValues(Statement& statement, const RowEdit& edit) {
    int parameter = 1;
    for (const StoredValue& value : edit.values())
        statement.bind(parameter++, value);
    return parameter;
}

} // namespace

void RowEdit::begin(Kind kind) {
    m_kind = kind;
    m_columns.clear();
    m_values.clear();
}

void RowEdit::assign(int column, StoredValue value) {
    const auto place = std::lower_bound(m_columns.begin(), m_columns.end(), column);
    const auto valuePlace = m_values.begin() + (place - m_columns.begin());
    if (place != m_columns.end() && *place == column) {
        *valuePlace = std::move(value);
        return;
    }
    m_values.insert(valuePlace, std::move(value));
    m_columns.insert(place, column);
}

const StoredValue* RowEdit::assigned(int column) const {
    const auto place = std::lower_bound(m_columns.begin(), m_columns.end(), column);
    if (place == m_columns.end() || *place != column)
        return nullptr;
    return &m_values[static_cast<size_t>(place - m_columns.begin())];
}

bool RowEdit::changesNothingIn(const Row& row) const {
    for (size_t place = 0; place < m_columns.size(); ++place) {
        if (row.values[static_cast<size_t>(m_columns[place])] != m_values[place])
            return false;
    }
    return true;
}

RowWriter::RowWriter(std::shared_ptr<const Connection> connection, TableSchema table)
    : m_connection(std::move(connection))
    , m_table(std::move(table)) {}

QByteArray RowWriter::nameOf(int column) const {
    return quotedName(m_table.columns[static_cast<size_t>(column)].name);
}

QByteArray RowWriter::updateSql(const RowEdit& edit) const {
    QByteArray assignments;
    for (const int column : edit.columns())
        assignments += (assignments.isEmpty() ? " SET " : ", ") + nameOf(column) + " = ?";
    return "UPDATE " + quotedName(m_table.name) + assignments + " WHERE " + m_table.rowNumber
           + " = ?";
}

QByteArray RowWriter::insertSql(const RowEdit& edit) const {
    if (edit.columns().empty())
        return "INSERT INTO " + quotedName(m_table.name) + " DEFAULT VALUES";
    QByteArray names;
    QByteArray parameters;
    for (const int column : edit.columns()) {
        names += (names.isEmpty() ? " (" : ", ") + nameOf(column);
        parameters += parameters.isEmpty() ? "?" : ", ?";
    }
    return "INSERT INTO " + quotedName(m_table.name) + names + ") VALUES (" + parameters + ")";
}

Statement& RowWriter::prepared(
    Prepared& kept, const RowEdit& edit, QByteArray (RowWriter::*sql)(const RowEdit&) const) {
    if (!kept.statement || kept.columns != edit.columns()) {
        kept.statement = std::make_unique<Statement>(m_connection, (this->*sql)(edit));
        kept.columns = edit.columns();
    }
    return *kept.statement;
}

// Whether a row was written.
bool RowWriter::runAndCommit(Statement& statement) {
    WriteTransaction transaction(*m_connection);
    {
        const StatementRun run(statement);
        statement.step();
    }
    if (sqlite3_changes(m_connection->handle()) == 0)
        return false;
    transaction.commit();
    return true;
}

bool RowWriter::update(qint64 number, const RowEdit& edit) {
    Statement& statement = prepared(m_update, edit, &RowWriter::updateSql);
    statement.bind(bindValues(statement, edit), number);
    return runAndCommit(statement);
}

bool RowWriter::remove(qint64 number) {
    Statement statement(
        m_connection,
        "DELETE FROM " + quotedName(m_table.name) + " WHERE " + m_table.rowNumber + " = ?");
    statement.bind(1, number);
    return runAndCommit(statement);
}

qint64 RowWriter::insert(const RowEdit& edit) {
    Statement& statement = prepared(m_insert, edit, &RowWriter::insertSql);
    bindValues(statement, edit);
    runAndCommit(statement);
    return sqlite3_last_insert_rowid(m_connection->handle());
}
