// A prepared statement, and the transactions around statements.
#pragma once

#include "store/StoredValue.h"

#include <memory>

class Connection;
struct sqlite3_stmt;

// Parameters count from 1 and result columns from 0, as in the engine. Every operation throws
// Error::StorageFailure when the engine refuses; the statement is then reset.
class Statement {
public:
    Statement(std::shared_ptr<const Connection> connection, const QByteArray& sql);
    ~Statement();
    Q_DISABLE_COPY_MOVE(Statement)

    void bind(int parameter, const StoredValue& value);
    void bind(int parameter, qint64 number);

    // Hands an object to a function of ours; `type` is the name under which that asks for it.
    void bindPointer(int parameter, void* object, const char* type);

    // True when a result row stands ready; its values are good until the next step or reset.
    bool step();

    // Ends the run; the locks of the file that it held are released.
    void reset();

    qint64 integer(int column) const;
    QString text(int column) const;
    StoredValue value(int column) const;

private:
    std::shared_ptr<const Connection> m_connection;
    sqlite3_stmt* m_statement = nullptr;
};

// Resets a statement when its run is left, in whichever way.
class StatementRun {
public:
    explicit StatementRun(Statement& statement)
        : m_statement(statement) {}
    ~StatementRun() { m_statement.reset(); }
    Q_DISABLE_COPY_MOVE(StatementRun)

private:
    Statement& m_statement;
};

// What is read within stems from one state of the file.
class ReadTransaction {
public:
    explicit ReadTransaction(const Connection& connection);
    ~ReadTransaction();
    Q_DISABLE_COPY_MOVE(ReadTransaction)

private:
    const Connection& m_connection;
};

// What is written within is written as a whole by commit, or not at all.
class WriteTransaction {
public:
    explicit WriteTransaction(const Connection& connection);
    ~WriteTransaction();
    Q_DISABLE_COPY_MOVE(WriteTransaction)

    // When it returns, the disk has everything.
    void commit();

private:
    const Connection& m_connection;
    bool m_isDone = false;
};
