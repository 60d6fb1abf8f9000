#include "store/DataFileInspection.h"

#include "basic/Error.h"
#include "desktop/HostPath.h"
#include "store/OpenDataFile.h"
#include "store/Statement.h"
#include "store/TableSchema.h"

namespace {

constexpr char TableNames[] = "SELECT name FROM sqlite_schema WHERE type = 'table' "
                              "AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY rowid";
constexpr char NamesOfColumns[] = "SELECT name FROM pragma_table_info(?)";
constexpr char NamesOfIndexes[] = "SELECT name FROM pragma_index_list(?) WHERE origin = 'c'";
constexpr char IntegrityCheck[] = "PRAGMA integrity_check(20)";

QStringList
textsOf(const std::shared_ptr<const Connection>& connection, const char* sql, const QString& key) {
    Statement statement(connection, sql);
    if (!key.isNull())
        statement.bind(1, toStored(key, Affinity::None));
    QStringList texts;
    while (statement.step())
        texts.append(statement.text(0));
    return texts;
}

qint64 rowsOf(const std::shared_ptr<const Connection>& connection, const QString& table) {
    Statement statement(connection, "SELECT count(*) FROM " + quotedName(table));
    return statement.step() ? statement.integer(0) : 0;
}

} // namespace

DataFileInspection::DataFileInspection(const QString& path)
    : m_connection(openDataFile(hostPath(path), true)) {}

QList<TableSummary> DataFileInspection::tables() const {
    QList<TableSummary> tables;
    for (const QString& name : textsOf(m_connection, TableNames, {}))
        tables.append(
            {name, textsOf(m_connection, NamesOfColumns, name),
             textsOf(m_connection, NamesOfIndexes, name), rowsOf(m_connection, name)});
    return tables;
}

QStringList DataFileInspection::damage() const {
    try {
        const QStringList lines = textsOf(m_connection, IntegrityCheck, {});
        return lines == QStringList(QStringLiteral("ok")) ? QStringList() : lines;
    } catch (const Error& error) {
        return {error.text()};
    }
}
