#include "store/RowSource.h"

#include "store/Connection.h"

#include <algorithm>

size_t Row::bytes() const {
    size_t sum = 0;
    for (const StoredValue& value : values) {
        if (const StoredText* const text = std::get_if<StoredText>(&value))
            sum += text->bytes.size();
        else if (const StoredBlob* const blob = std::get_if<StoredBlob>(&value))
            sum += blob->bytes.size();
    }
    return sum;
}

void RowBatch::add(Row row) {
    m_bytes += row.bytes();
    m_rows.push_back(std::move(row));
}

RowSource::RowSource(std::shared_ptr<const Connection> connection, TableSchema table)
    : m_connection(std::move(connection))
    , m_table(std::move(table)) {}

std::optional<Row> RowSource::rowNumbered(qint64 number) {
    if (!m_byNumber)
        m_byNumber = std::make_unique<Statement>(
            m_connection, m_table.selectRow() + " WHERE " + m_table.rowNumber + " = ?1");
    const StatementRun run(*m_byNumber);
    m_byNumber->bind(1, number);
    if (!m_byNumber->step())
        return std::nullopt;
    return takeRow(*m_byNumber);
}

Row RowSource::takeRow(const Statement& statement) const {
    Row row;
    row.number = statement.integer(0);
    row.values.reserve(m_table.columns.size());
    for (int column = 1; column <= static_cast<int>(m_table.columns.size()); ++column)
        row.values.push_back(statement.value(column));
    return row;
}

ListedRows::ListedRows(
    std::shared_ptr<const Connection> connection, TableSchema table, std::vector<qint64> numbers)
    : RowSource(std::move(connection), std::move(table))
    , m_numbers(std::move(numbers)) {}

void ListedRows::read(const Row* from, Direction direction, RowBatch& batch) {
    const auto addIfThere = [&](qint64 number) {
        if (std::optional<Row> row = rowNumbered(number))
            batch.add(std::move(*row));
    };
    if (direction == Direction::Forward) {
        auto next = from ? std::upper_bound(m_numbers.begin(), m_numbers.end(), from->number)
                         : m_numbers.begin();
        for (; next != m_numbers.end() && !batch.isFull(); ++next)
            addIfThere(*next);
        return;
    }
    auto behind =
        from ? std::lower_bound(m_numbers.begin(), m_numbers.end(), from->number) : m_numbers.end();
    for (; behind != m_numbers.begin() && !batch.isFull(); --behind)
        addIfThere(*std::prev(behind));
}

void ListedRows::include(qint64 number) {
    const auto place = std::lower_bound(m_numbers.begin(), m_numbers.end(), number);
    if (place == m_numbers.end() || *place != number)
        m_numbers.insert(place, number);
}

void ListedRows::exclude(qint64 number) {
    const auto place = std::lower_bound(m_numbers.begin(), m_numbers.end(), number);
    if (place != m_numbers.end() && *place == number)
        m_numbers.erase(place);
}
