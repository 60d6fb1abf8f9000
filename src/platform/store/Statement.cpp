#include "store/Statement.h"

#include "store/Connection.h"

#include <sqlite3.h>

Statement::Statement(std::shared_ptr<const Connection> connection, const QByteArray& sql)
    : m_connection(std::move(connection)) {
    const int code = sqlite3_prepare_v3(
        m_connection->handle(), sql.constData(), static_cast<int>(sql.size()),
        SQLITE_PREPARE_PERSISTENT, &m_statement, nullptr);
    if (code != SQLITE_OK)
        m_connection->fail(code);
}

Statement::~Statement() {
    sqlite3_finalize(m_statement);
}

void Statement::bind(int parameter, const StoredValue& value) {
    struct Visitor {
        sqlite3_stmt* statement;
        int parameter;

        int operator()(std::monostate) const { return sqlite3_bind_null(statement, parameter); }
        int operator()(qint64 number) const {
            return sqlite3_bind_int64(statement, parameter, number);
        }
        int operator()(double number) const {
            return sqlite3_bind_double(statement, parameter, number);
        }
        int operator()(const StoredText& text) const {
            return sqlite3_bind_text64(
                statement, parameter, text.bytes.data(), text.bytes.size(), SQLITE_TRANSIENT,
                SQLITE_UTF8);
        }
        int operator()(const StoredBlob& blob) const {
            return sqlite3_bind_blob64(
                statement, parameter, blob.bytes.data(), blob.bytes.size(), SQLITE_TRANSIENT);
        }
    };
    const int code = std::visit(Visitor{m_statement, parameter}, value);
    if (code != SQLITE_OK)
        m_connection->fail(code);
}

void Statement::bind(int parameter, qint64 number) {
    bind(parameter, StoredValue(number));
}

void Statement::bindPointer(int parameter, void* object, const char* type) {
    const int code = sqlite3_bind_pointer(m_statement, parameter, object, type, nullptr);
    if (code != SQLITE_OK)
        m_connection->fail(code);
}

bool Statement::step() {
    const int code = sqlite3_step(m_statement);
    if (code == SQLITE_ROW)
        return true;
    if (code == SQLITE_DONE)
        return false;
    try {
        m_connection->fail(code);
    } catch (...) {
        reset(); // only now: it would clear the engine's text
        throw;
    }
}

void Statement::reset() {
    sqlite3_reset(m_statement);
}

qint64 Statement::integer(int column) const {
    return sqlite3_column_int64(m_statement, column);
}

QString Statement::text(int column) const {
    return toVariant(value(column)).toString();
}

StoredValue Statement::value(int column) const {
    const auto bytes = [&](const void* data) {
        const auto size = static_cast<size_t>(sqlite3_column_bytes(m_statement, column));
        return data ? std::string(static_cast<const char*>(data), size) : std::string();
    };
    switch (sqlite3_column_type(m_statement, column)) {
    case SQLITE_INTEGER:
        return static_cast<qint64>(sqlite3_column_int64(m_statement, column));
    case SQLITE_FLOAT:
        return sqlite3_column_double(m_statement, column);
    case SQLITE_TEXT:
        return StoredText{bytes(sqlite3_column_text(m_statement, column))};
    case SQLITE_BLOB:
        return StoredBlob{bytes(sqlite3_column_blob(m_statement, column))};
    default:
        return {};
    }
}

ReadTransaction::ReadTransaction(const Connection& connection)
    : m_connection(connection) {
    m_connection.execute("BEGIN");
}

ReadTransaction::~ReadTransaction() {
    if (m_connection.tryExecute("COMMIT") != SQLITE_OK)
        m_connection.tryExecute("ROLLBACK"); // else nothing could begin any more
}

// At once the writer's lock: who begins as a reader and goes on to write may have to give up.
WriteTransaction::WriteTransaction(const Connection& connection)
    : m_connection(connection) {
    m_connection.execute("BEGIN IMMEDIATE");
}

WriteTransaction::~WriteTransaction() {
    if (!m_isDone)
        m_connection.tryExecute("ROLLBACK"); // fails where the engine has rolled back already
}

void WriteTransaction::commit() {
    m_connection.execute("COMMIT");
    m_isDone = true;
}
