// The write cycle of a cursor, and the statements that carry it out.
#pragma once

#include "store/RowSource.h"

// The values that were assigned since Edit or AddNew.
class RowEdit {
public:
    enum class Kind { None, Edit, Add };

    void begin(Kind kind);
    void end() { begin(Kind::None); }
    Kind kind() const { return m_kind; }

    void assign(int column, StoredValue value);

    // The assigned value of a column; nullptr if none was assigned.
    const StoredValue* assigned(int column) const;

    // The assigned columns, ascending, and their values.
    const std::vector<int>& columns() const { return m_columns; }
    const std::vector<StoredValue>& values() const { return m_values; }

    // Whether the row already holds every assigned value.
    bool changesNothingIn(const Row& row) const;

private:
    Kind m_kind = Kind::None;
    std::vector<int> m_columns;
    std::vector<StoredValue> m_values;
};

// Writes rows of one table, each durably and by itself. The last statement of each kind is kept,
// since the next row is mostly written like it.
class RowWriter {
public:
    RowWriter(std::shared_ptr<const Connection> connection, TableSchema table);

    // False, with nothing written, if the row is gone.
    bool update(qint64 number, const RowEdit& edit);
    bool remove(qint64 number);

    // The number of the new row.
    qint64 insert(const RowEdit& edit);

private:
    struct Prepared {
        std::vector<int> columns;
        std::unique_ptr<Statement> statement;
    };

    Statement& prepared(
        Prepared& kept, const RowEdit& edit, QByteArray (RowWriter::*sql)(const RowEdit&) const);
    QByteArray updateSql(const RowEdit& edit) const;
    QByteArray insertSql(const RowEdit& edit) const;
    QByteArray nameOf(int column) const;
    bool runAndCommit(Statement& statement);

    std::shared_ptr<const Connection> m_connection;
    TableSchema m_table;
    Prepared m_update;
    Prepared m_insert;
};
