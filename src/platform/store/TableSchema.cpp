#include "store/TableSchema.h"

#include "basic/Error.h"
#include "store/Connection.h"
#include "store/Statement.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using ConnectionPointer = std::shared_ptr<const Connection>;

[[noreturn]] void throwNotATable(const ConnectionPointer& connection, const QString& name) {
    throw Error(
        Error::NotATable, u"The file %1 has no table \"%2\"."_s.arg(connection->shownName(), name));
}

[[noreturn]] void throwNotAnIndex(const TableSchema& table, const QString& name) {
    throw Error(
        Error::NotAnIndex, u"The file %1 has no index \"%2\" to follow on its table \"%3\"."_s.arg(
                               table.file, name, table.name));
}

// The engine's own rules, in its order.
Affinity affinityOf(const QString& declaredType) {
    struct Rule {
        QStringView part;
        Affinity affinity;
    };
    static constexpr Rule rules[] = {
        {u"INT", Affinity::Integer}, {u"CHAR", Affinity::Text}, {u"CLOB", Affinity::Text},
        {u"TEXT", Affinity::Text},   {u"BLOB", Affinity::None}, {u"REAL", Affinity::Real},
        {u"FLOA", Affinity::Real},   {u"DOUB", Affinity::Real},
    };
    if (declaredType.isEmpty())
        return Affinity::None;
    for (const Rule& rule : rules) {
        if (declaredType.contains(rule.part, Qt::CaseInsensitive))
            return rule.affinity;
    }
    return Affinity::Numeric;
}

bool isSameName(const QString& left, const QString& right) {
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

// The table's name as it stands in the file. Views and virtual tables run code, and a table without
// row numbers has no order of its own: they are no tables here.
QString findTable(const ConnectionPointer& connection, const QString& name) {
    Statement tables(
        connection, "SELECT name FROM pragma_table_list(?1) WHERE schema = 'main' "
                    "AND type = 'table' AND wr = 0 AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\'");
    const StatementRun run(tables);
    tables.bind(1, StoredText{name.toStdString()});
    if (!tables.step())
        throwNotATable(connection, name);
    return tables.text(0);
}

bool hasKeyIndexOfItsOwn(const ConnectionPointer& connection, const TableSchema& table) {
    Statement indexes(connection, "SELECT 1 FROM pragma_index_list(?1) WHERE origin = 'pk'");
    const StatementRun run(indexes);
    indexes.bind(1, StoredText{table.name.toStdString()});
    return indexes.step();
}

// A single INTEGER key without an index of its own is the row's number.
void findRowNumber(const ConnectionPointer& connection, TableSchema& table, int keyColumn) {
    if (keyColumn >= 0 && !hasKeyIndexOfItsOwn(connection, table)) {
        Column& column = table.columns[static_cast<size_t>(keyColumn)];
        column.isRowNumber = true;
        table.rowNumber = quotedName(column.name);
        return;
    }
    for (const QStringView name : {u"rowid", u"_rowid_", u"oid"}) {
        if (table.columnNamed(name.toString()) < 0) {
            table.rowNumber = name.toLatin1();
            return;
        }
    }
    throwNotATable(connection, table.name);
}

} // namespace

QByteArray quotedName(const QString& name) {
    return '"' + name.toUtf8().replace("\"", "\"\"") + '"';
}

int TableSchema::columnNamed(const QString& columnName) const {
    const auto found = std::find_if(columns.begin(), columns.end(), [&](const Column& column) {
        return isSameName(column.name, columnName);
    });
    return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

void TableSchema::failForLackOf(const QString& field) const {
    throw Error(
        Error::ItemNotFound,
        u"The file %1 has no field %2 in its table \"%3\"."_s.arg(file, field, name));
}

int TableSchema::rowNumberColumn() const {
    const auto found = std::find_if(
        columns.begin(), columns.end(), [](const Column& column) { return column.isRowNumber; });
    return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

QByteArray TableSchema::selectRow() const {
    QByteArray select = "SELECT " + rowNumber;
    for (const Column& column : columns)
        select += ", " + quotedName(column.name);
    return select + " FROM " + quotedName(name);
}

TableSchema readTableSchema(const ConnectionPointer& connection, const QString& name) {
    TableSchema table;
    table.file = connection->shownName();
    table.name = findTable(connection, name);
    Statement columns(connection, "SELECT name, type, pk, hidden FROM pragma_table_xinfo(?1)");
    const StatementRun run(columns);
    columns.bind(1, StoredText{table.name.toStdString()});
    int keyColumn = -1;
    int keyColumnCount = 0;
    while (columns.step()) {
        const QString type = columns.text(1);
        if (columns.integer(3) != 0) // computed, which no data file of ours is
            throwNotATable(connection, name);
        if (columns.integer(2) != 0) {
            ++keyColumnCount;
            if (isSameName(type, u"INTEGER"_s))
                keyColumn = static_cast<int>(table.columns.size());
        }
        table.columns.push_back({columns.text(0), affinityOf(type), false});
    }
    findRowNumber(connection, table, keyColumnCount == 1 ? keyColumn : -1);
    return table;
}

KeyIndex
readKeyIndex(const ConnectionPointer& connection, const TableSchema& table, const QString& name) {
    Statement keys(
        connection, "SELECT list.name, key.cid, key.desc, key.coll, list.partial "
                    "FROM pragma_index_list(?1) AS list, pragma_index_xinfo(list.name) AS key "
                    "WHERE key.key = 1 ORDER BY list.seq, key.seqno");
    const StatementRun run(keys);
    keys.bind(1, StoredText{table.name.toStdString()});
    KeyIndex index;
    while (keys.step()) {
        if (!isSameName(keys.text(0), name))
            continue;
        const qint64 column = keys.integer(1);
        const bool isPlain = column >= 0 && column < static_cast<qint64>(table.columns.size())
                             && keys.integer(2) == 0 && isSameName(keys.text(3), u"BINARY"_s)
                             && keys.integer(4) == 0;
        if (!isPlain)
            throwNotAnIndex(table, name);
        index.name = quotedName(keys.text(0));
        index.columns.push_back(static_cast<int>(column));
    }
    if (index.columns.empty())
        throwNotAnIndex(table, name);
    return index;
}
