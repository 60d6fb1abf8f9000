#include "store/RowSource.h"

#include "store/Connection.h"

#include <algorithm>
#include <limits>

namespace {

// The smallest value that a column can hold besides Null.
StoredValue leastValue(Affinity affinity) {
    if (affinity == Affinity::Text)
        return StoredText{};
    return -std::numeric_limits<double>::infinity();
}

bool isNull(const StoredValue& value) {
    return std::holds_alternative<std::monostate>(value);
}

} // namespace

TableRows::TableRows(
    std::shared_ptr<const Connection> connection, TableSchema table, std::optional<KeyIndex> index)
    : RowSource(std::move(connection), std::move(table))
    , m_index(std::move(index)) {}

// From the rows that share the whole key with `from` to those that share none of it. Nulls come
// first in an index: forward from a Null lie all other values, back from a value lie the smaller
// ones and then the Nulls.
void TableRows::read(const Row* from, Direction direction, RowBatch& batch) {
    using Next = Stretch::Next;
    const size_t firstNew = batch.rows().size();
    if (!from) {
        readStretch({direction, 0, Next::Any}, {}, batch);
    } else {
        std::vector<StoredValue> key = keyOf(*from);
        readStretch({direction, keySize(), Next::Beyond}, key, batch);
        for (size_t shared = keySize(); shared-- > 0 && !batch.isFull();) {
            if (!isNull(key[shared])) {
                readStretch({direction, shared, Next::Beyond}, key, batch);
                key[shared] = {};
                if (direction == Direction::Backward && !batch.isFull())
                    readStretch({direction, shared + 1, Next::Any}, key, batch);
            } else if (direction == Direction::Forward) {
                key[shared] = leastValue(keyColumn(shared).affinity);
                readStretch({direction, shared, Next::NotNull}, key, batch);
            }
        }
    }
    for (size_t place = firstNew; place < batch.rows().size(); ++place) {
        const Row* const earlier = place > firstNew ? &batch.rows()[place - 1] : from;
        if (earlier)
            checkOrder(*earlier, batch.rows()[place], direction);
    }
}

std::optional<Row> TableRows::firstWithKey(const std::vector<StoredValue>& values) {
    RowBatch batch(1);
    readStretch({Direction::Forward, values.size(), Stretch::Next::Any}, values, batch);
    if (batch.rows().empty())
        return std::nullopt;
    return std::move(batch.rows().front());
}

const Column& TableRows::keyColumn(size_t place) const {
    return table().columns[static_cast<size_t>(m_index->columns[place])];
}

// What the rows are ordered by at a place: a key column, or behind them the row's number.
QByteArray TableRows::nameInOrder(size_t place) const {
    return place < keySize() ? quotedName(keyColumn(place).name) : table().rowNumber;
}

QByteArray TableRows::sql(const Stretch& stretch) const {
    const bool isForward = stretch.direction == Direction::Forward;
    QByteArray conditions;
    const auto require = [&](size_t place, const char* comparison) {
        conditions += (conditions.isEmpty() ? " WHERE " : " AND ") + nameInOrder(place) + comparison
                      + QByteArray::number(place + 1);
    };
    for (size_t place = 0; place < stretch.sharedColumns; ++place)
        require(place, " IS ?");
    if (stretch.next == Stretch::Next::NotNull)
        require(stretch.sharedColumns, " >= ?");
    else if (stretch.next == Stretch::Next::Beyond)
        require(stretch.sharedColumns, isForward ? " > ?" : " < ?");
    QByteArray order;
    for (size_t place = std::min(stretch.sharedColumns, keySize()); place <= keySize(); ++place)
        order += (order.isEmpty() ? " ORDER BY " : ", ") + nameInOrder(place)
                 + (isForward ? "" : " DESC");
    const QByteArray index = m_index ? " INDEXED BY " + m_index->name : " NOT INDEXED";
    return table().selectRow() + index + conditions + order + " LIMIT ?"
           + QByteArray::number(stretch.keyParameters() + 1);
}

Statement& TableRows::statementFor(const Stretch& stretch) {
    const auto found =
        std::find_if(m_statements.begin(), m_statements.end(), [&](const auto& entry) {
            return entry.first == stretch;
        });
    if (found != m_statements.end())
        return *found->second;
    m_statements.emplace_back(stretch, std::make_unique<Statement>(connection(), sql(stretch)));
    return *m_statements.back().second;
}

// The key and, behind it, the row's number.
std::vector<StoredValue> TableRows::keyOf(const Row& row) const {
    std::vector<StoredValue> key;
    for (size_t place = 0; place < keySize(); ++place)
        key.push_back(row.values[static_cast<size_t>(m_index->columns[place])]);
    key.emplace_back(row.number);
    return key;
}

void TableRows::readStretch(
    const Stretch& stretch, const std::vector<StoredValue>& key, RowBatch& batch) {
    Statement& statement = statementFor(stretch);
    const StatementRun run(statement);
    for (int place = 0; place < stretch.keyParameters(); ++place)
        statement.bind(place + 1, key[static_cast<size_t>(place)]);
    statement.bind(stretch.keyParameters() + 1, static_cast<qint64>(batch.missing()));
    while (!batch.isFull() && statement.step())
        batch.add(takeRow(statement));
}

// In a damaged file an index may lead back to where it came from: a walk must end nevertheless.
void TableRows::checkOrder(const Row& earlier, const Row& later, Direction direction) const {
    std::weak_ordering order = std::weak_ordering::equivalent;
    for (size_t place = 0; place < keySize() && std::is_eq(order); ++place) {
        const auto column = static_cast<size_t>(m_index->columns[place]);
        order = compareStored(earlier.values[column], later.values[column]);
    }
    if (std::is_eq(order))
        order = earlier.number <=> later.number;
    if (direction == Direction::Forward ? std::is_gteq(order) : std::is_lteq(order))
        connection()->failAsDamaged();
}
