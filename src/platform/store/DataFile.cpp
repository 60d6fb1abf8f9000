#include "store/DataFile.h"

#include "basic/Error.h"
#include "store/Connection.h"
#include "store/FileSwap.h"
#include "store/Statement.h"
#include "store/TableSchema.h"

#include <map>

using namespace Qt::StringLiterals;

namespace {

// Large pages make a walk through all rows a third faster. Nobody sees the file before it is
// complete, so nothing has to be safe until then.
constexpr char NewFile[] = "PRAGMA page_size = 16384; PRAGMA encoding = 'UTF-8';"
                           "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF;"
                           "PRAGMA locking_mode = EXCLUSIVE";

QByteArray insertSql(const QString& table, qsizetype valueCount) {
    QByteArray parameters;
    for (qsizetype index = 0; index < valueCount; ++index)
        parameters += index == 0 ? "?" : ", ?";
    return "INSERT INTO " + quotedName(table) + " VALUES (" + parameters + ")";
}

QByteArray typeOf(NewColumn::Kind kind) {
    switch (kind) {
    case NewColumn::Kind::Number:
        return "INTEGER";
    case NewColumn::Kind::Counter:
        return "INTEGER PRIMARY KEY AUTOINCREMENT";
    case NewColumn::Kind::Real:
        return "REAL";
    case NewColumn::Kind::Text:
        return "TEXT";
    case NewColumn::Kind::Bytes:
        return "BLOB";
    }
    Q_UNREACHABLE();
}

QByteArray createSql(const QString& table, const QList<NewColumn>& columns) {
    QByteArray list;
    for (const NewColumn& column : columns)
        list += (list.isEmpty() ? "" : ", ") + quotedName(column.name) + ' ' + typeOf(column.kind);
    return "CREATE TABLE " + quotedName(table) + " (" + list + ")";
}

} // namespace

class DataFileWriter::State {
public:
    explicit State(const QString& path)
        : m_file(path)
        , m_connection(
              std::make_shared<Connection>(m_file.path(), Connection::Access::Create, path)) {
        m_connection->execute(NewFile);
        m_connection->execute("BEGIN");
    }

    void execute(const char* statement) { m_connection->execute(statement); }

    // The engine notes the last number when a row is added, and of a table without rows nothing.
    void setLastNumber(const QString& table, qint64 number) {
        Statement update(
            m_connection, "UPDATE sqlite_sequence SET seq = max(seq, ?2) WHERE name = ?1");
        Statement add(
            m_connection, "INSERT INTO sqlite_sequence (name, seq) SELECT ?1, ?2 WHERE NOT EXISTS "
                          "(SELECT 1 FROM sqlite_sequence WHERE name = ?1)");
        for (Statement* const statement : {&update, &add}) {
            const StatementRun run(*statement);
            statement->bind(1, StoredText{table.toStdString()});
            statement->bind(2, number);
            statement->step();
        }
    }

    void insert(const QString& table, const QVariantList& values) {
        Statement& statement = insertFor(table, values.size());
        const StatementRun run(statement);
        int parameter = 1;
        for (const QVariant& value : values) // the column makes of it what it holds
            statement.bind(parameter++, toStored(value, Affinity::None));
        statement.step();
    }

    void finish() {
        m_inserts.clear();
        const QByteArray mark =
            "PRAGMA application_id = " + QByteArray::number(DataFileApplicationId);
        m_connection->execute(mark.constData());
        m_connection->execute("COMMIT");
        m_connection->syncFile();
        m_connection.reset();
        m_file.putInPlace();
    }

private:
    Statement& insertFor(const QString& table, qsizetype valueCount) {
        std::unique_ptr<Statement>& statement = m_inserts[{table, valueCount}];
        if (!statement)
            statement = std::make_unique<Statement>(m_connection, insertSql(table, valueCount));
        return *statement;
    }

    FileSwap m_file; // first: the connection must be closed before the file is removed
    std::shared_ptr<Connection> m_connection;
    std::map<std::pair<QString, qsizetype>, std::unique_ptr<Statement>> m_inserts;
};

DataFileWriter::DataFileWriter(const QString& path)
    : m_state(std::make_unique<State>(path)) {}

DataFileWriter::~DataFileWriter() = default;

DataFileWriter::State& DataFileWriter::state() const {
    if (!m_state)
        throw Error(Error::AlreadyClosed, u"The data file is written already."_s);
    return *m_state;
}

void DataFileWriter::execute(const char* statement) {
    state().execute(statement);
}

void DataFileWriter::createTable(const QString& table, const QList<NewColumn>& columns) {
    state().execute(createSql(table, columns).constData());
}

void DataFileWriter::setLastNumber(const QString& table, qint64 number) {
    state().setLastNumber(table, number);
}

void DataFileWriter::insert(const QString& table, const QVariantList& values) {
    state().insert(table, values);
}

void DataFileWriter::finish() {
    state();
    const std::unique_ptr<State> done = std::move(m_state);
    done->finish();
}
