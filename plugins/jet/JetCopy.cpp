#include "jet/JetCopy.h"

#include "basic/Error.h"
#include "jet/JetCatalogue.h"
#include "jet/JetRows.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString VerseTable = u"tblMain"_s;
const QStringList VerseFields = {u"ID"_s,    u"book"_s, u"chapter"_s,
                                 u"verse"_s, u"body"_s, u"note"_s};

bool isVerseTable(const JetTable& table) {
    return table.name().compare(VerseTable, Qt::CaseInsensitive) == 0;
}

NewColumn::Kind kindOf(JetType type) {
    switch (type) {
    case JetType::Single:
    case JetType::Double:
    case JetType::Date:
    case JetType::Money:
    case JetType::Numeric:
        return NewColumn::Kind::Real;
    case JetType::Text:
    case JetType::Memo:
    case JetType::Guid:
        return NewColumn::Kind::Text;
    case JetType::Binary:
    case JetType::Bytes:
    case JetType::Ole:
        return NewColumn::Kind::Bytes;
    default:
        return NewColumn::Kind::Number;
    }
}

void checkVerseFields(const JetTable& table) {
    for (const QString& field : VerseFields) {
        if (!table.columnNamed(field))
            throw Error(
                Error::NotADatabase, u"%1 has no field \"%2\" in its table %3."_s.arg(
                                         table.file().name(), field, table.name()));
    }
}

// What a look at all numbers of a counter tells.
struct CounterNumbers {
    bool areInOrder = true;
    bool areKeys = true; // no two alike, none missing
};

CounterNumbers look(JetTable& table, const JetColumn& counter) {
    CounterNumbers found;
    std::vector<qint32> numbers;
    JetRows rows(table);
    while (rows.next()) {
        const QVariant number = rows.value(counter);
        found.areKeys = found.areKeys && !number.isNull();
        numbers.push_back(number.toInt());
    }
    found.areInOrder =
        found.areKeys && std::ranges::adjacent_find(numbers, std::greater_equal()) == numbers.end();
    std::ranges::sort(numbers);
    found.areKeys = found.areKeys && std::ranges::adjacent_find(numbers) == numbers.end();
    return found;
}

// The counter that the rows can be numbered by; nullptr if there is none.
const JetColumn* keyCounter(JetTable& table) {
    const auto counter = std::ranges::find_if(table.columns(), &JetColumn::isCounter);
    if (counter == table.columns().end())
        return nullptr;
    const CounterNumbers numbers = look(table, *counter);
    const bool isKey = numbers.areInOrder || (numbers.areKeys && !isVerseTable(table));
    return isKey ? &*counter : nullptr;
}

void createTable(const JetTable& table, const JetColumn* counter, DataFileWriter& writer) {
    QList<NewColumn> columns;
    for (const JetColumn& column : table.columns())
        columns.append(
            {column.name, &column == counter ? NewColumn::Kind::Counter : kindOf(column.type)});
    writer.createTable(table.name(), columns);
    if (isVerseTable(table)) // made here: the file's own indexes may be unreadable
        writer.execute("CREATE INDEX VerseIndex ON tblMain (book, chapter, verse)");
}

void copyTable(JetTable& table, DataFileWriter& writer) {
    if (isVerseTable(table))
        checkVerseFields(table);
    const JetColumn* const counter = keyCounter(table);
    createTable(table, counter, writer);
    JetRows rows(table);
    while (rows.next())
        writer.insert(table.name(), rows.values());
    if (counter)
        writer.setLastNumber(table.name(), table.definition().lastCounter());
}

} // namespace

void copyJetTables(JetFile& file, DataFileWriter& writer) {
    const QList<JetCatalogueEntry> entries = readJetCatalogue(file);
    if (entries.isEmpty())
        throw Error(Error::NotADatabase, u"%1 holds no tables."_s.arg(file.name()));
    for (const JetCatalogueEntry& entry : entries) {
        JetTable table(file, entry.page, entry.name);
        copyTable(table, writer);
    }
}
