// What a cursor must know of its table: columns, indexes and how the engine names the row number.
// Every name that reaches SQL comes from here, quoted, and so from the file's own table.
#pragma once

#include "store/StoredValue.h"

#include <memory>
#include <vector>

class Connection;

struct Column {
    QString name;
    Affinity affinity = Affinity::None;
    bool isRowNumber = false; // the column is the row's number itself
};

// The name as SQL takes it, whatever it holds.
QByteArray quotedName(const QString& name);

struct TableSchema {
    QString file; // as messages show it
    QString name;
    QByteArray rowNumber; // quoted name of the row's number
    std::vector<Column> columns;

    // The column of a name, without regard to case; -1 if there is none.
    int columnNamed(const QString& columnName) const;

    // Error::ItemNotFound; the field as the message shows it.
    [[noreturn]] void failForLackOf(const QString& field) const;

    // The column that is the row's number; -1 if there is none.
    int rowNumberColumn() const;

    // The quoted names of the row's number and of all columns, as the start of a SELECT.
    QByteArray selectRow() const;
};

// An index whose key columns are columns of the table.
struct KeyIndex {
    QByteArray name; // quoted
    std::vector<int> columns;
};

// Error::NotATable when the file has no table of this name that a cursor could stand on.
TableSchema
readTableSchema(const std::shared_ptr<const Connection>& connection, const QString& name);

// Error::NotAnIndex when the table has no index of this name (without regard to case), or one that
// does not simply order the rows by columns.
KeyIndex readKeyIndex(
    const std::shared_ptr<const Connection>& connection, const TableSchema& table,
    const QString& name);
