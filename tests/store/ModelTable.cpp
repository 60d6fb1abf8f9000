#include "ModelTable.h"

#include <algorithm>

int compareKeys(const QVariant& left, const QVariant& right) {
    const auto kind = [](const QVariant& value) {
        return !value.isValid() ? 0 : value.typeId() == QMetaType::QString ? 2 : 1;
    };
    if (kind(left) != kind(right))
        return kind(left) < kind(right) ? -1 : 1;
    if (kind(left) == 1)
        return (left.toDouble() > right.toDouble()) - (left.toDouble() < right.toDouble());
    return kind(left) == 0 ? 0 : left.toString().compare(right.toString());
}

qint64 ModelTable::add(const ModelRow& row) {
    const qint64 number = rows.empty() ? 1 : rows.rbegin()->first + 1;
    rows[number] = row;
    return number;
}

ModelCursor::ModelCursor(ModelTable& table, std::vector<int> keyColumns, const Test& chosen)
    : m_table(table)
    , m_keyColumns(std::move(keyColumns)) {
    if (chosen) {
        m_listed.emplace();
        for (const auto& [number, row] : m_table.rows) {
            if (chosen(row))
                m_listed->insert(number);
        }
    }
    moveToEnd(true);
}

bool ModelCursor::isMember(qint64 number) const {
    return m_table.rows.count(number) != 0 && (!m_listed || m_listed->count(number) != 0);
}

std::vector<qint64> ModelCursor::members() const {
    std::vector<qint64> numbers;
    for (const auto& [number, row] : m_table.rows) {
        if (isMember(number))
            numbers.push_back(number);
    }
    return numbers;
}

ModelCursor::Position ModelCursor::positionOf(qint64 number) const {
    Position position{{}, number};
    for (const int column : m_keyColumns)
        position.key += m_table.rows.at(number)[column];
    return position;
}

bool ModelCursor::isBefore(const Position& left, const Position& right) const {
    for (qsizetype place = 0; place < left.key.size(); ++place) {
        const int order = compareKeys(left.key[place], right.key[place]);
        if (order != 0)
            return order < 0;
    }
    return left.number < right.number;
}

// The nearest member beyond a position, or the first of all from that end.
std::optional<qint64>
ModelCursor::nearest(const std::optional<Position>& from, bool isForward) const {
    const auto precedes = [&](const Position& left, const Position& right) {
        return isForward ? isBefore(left, right) : isBefore(right, left);
    };
    std::optional<Position> best;
    for (const auto& [number, row] : m_table.rows) {
        if (!isMember(number))
            continue;
        Position position = positionOf(number);
        if ((!from || precedes(*from, position)) && (!best || precedes(position, *best)))
            best = std::move(position);
    }
    return best ? std::optional(best->number) : std::nullopt;
}

void ModelCursor::standOn(qint64 number) {
    m_place = Place::OnRow;
    m_number = number;
    m_lastSeen = positionOf(number);
    m_farthest = std::max(m_farthest.value_or(number), number);
}

void ModelCursor::lookAtCurrent() {
    if (m_place == Place::OnRow && !isGone())
        m_lastSeen = positionOf(m_number);
}

ModelCursor::Outcome ModelCursor::moveToEnd(bool isFirst) {
    const std::optional<qint64> number = nearest(std::nullopt, isFirst);
    if (number) {
        standOn(*number);
        return std::nullopt;
    }
    m_place = Place::Nowhere;
    return Error::NoCurrentRecord;
}

ModelCursor::Outcome ModelCursor::step(bool isForward) {
    const Place end = isForward ? Place::BehindLast : Place::BeforeFirst;
    if (m_place == Place::Nowhere || m_place == end)
        return Error::NoCurrentRecord;
    lookAtCurrent();
    const bool fromEnd = m_place == Place::BehindLast || m_place == Place::BeforeFirst;
    const std::optional<qint64> number =
        nearest(fromEnd ? std::nullopt : std::optional(m_lastSeen), isForward);
    if (number)
        standOn(*number);
    else
        m_place = end;
    return std::nullopt;
}

ModelCursor::Outcome ModelCursor::read(ModelRow& row) {
    if (m_place != Place::OnRow)
        return Error::NoCurrentRecord;
    if (isGone())
        return Error::RecordDeleted;
    lookAtCurrent();
    row = m_table.rows[m_number];
    return std::nullopt;
}

ModelCursor::Outcome ModelCursor::write(int column, const QVariant& value) {
    ModelRow row;
    const Outcome outcome = read(row);
    if (!outcome)
        m_table.rows[m_number][column] = value;
    return outcome;
}

ModelCursor::Outcome ModelCursor::remove() {
    ModelRow row;
    const Outcome outcome = read(row);
    if (outcome)
        return outcome;
    m_table.rows.erase(m_number);
    m_place = Place::Gap;
    if (m_listed)
        m_listed->erase(m_number);
    return std::nullopt;
}

void ModelCursor::add(const ModelRow& row) {
    const qint64 number = m_table.add(row);
    if (m_listed)
        m_listed->insert(number);
}

void ModelCursor::seek(const QVariantList& key) {
    std::optional<qint64> found;
    for (std::optional<qint64> number = nearest(std::nullopt, true); number && !found;
         number = nearest(positionOf(*number), true)) {
        const Position position = positionOf(*number);
        bool isEqual = true;
        for (qsizetype place = 0; place < key.size(); ++place)
            isEqual = isEqual && compareKeys(position.key[place], key[place]) == 0;
        if (isEqual)
            found = number;
    }
    m_noMatch = !found;
    if (found)
        standOn(*found);
    else
        m_place = Place::Nowhere;
}

ModelCursor::Outcome ModelCursor::find(const Test& test, bool isForward, bool fromStart) {
    m_noMatch = false;
    if (!fromStart && m_place != Place::OnRow) {
        m_noMatch = members().empty();
        return m_noMatch ? Outcome() : Error::NoCurrentRecord;
    }
    std::vector<qint64> numbers = members();
    if (!isForward)
        std::reverse(numbers.begin(), numbers.end());
    for (const qint64 number : numbers) {
        const bool isBeyond = fromStart || (isForward ? number > m_number : number < m_number);
        if (isBeyond && test(m_table.rows[number])) {
            standOn(number);
            return std::nullopt;
        }
    }
    m_noMatch = true;
    return std::nullopt;
}

bool ModelCursor::isBof() const {
    return m_place == Place::BeforeFirst || (m_place != Place::OnRow && members().empty());
}

bool ModelCursor::isEof() const {
    return m_place == Place::BehindLast || (m_place != Place::OnRow && members().empty());
}

int ModelCursor::recordCount(bool isTable) const {
    const std::vector<qint64> numbers = members();
    return static_cast<int>(std::count_if(numbers.begin(), numbers.end(), [&](qint64 number) {
        return isTable || (m_farthest && number <= *m_farthest);
    }));
}
