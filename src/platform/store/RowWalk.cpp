#include "store/RowWalk.h"

#include "basic/Error.h"
#include "store/Connection.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// A cursor that steps reads few rows ahead at first, and more as it goes on.
constexpr size_t FirstReadAhead = 4;
constexpr size_t ReadAheadGrowth = 4;
constexpr size_t LargestReadAhead = 256;
constexpr size_t LargestWindow = 512;
constexpr size_t LargestWindowBytes = size_t(1024) * 1024;

[[noreturn]] void throwNoCurrentRecord() {
    throw Error(Error::NoCurrentRecord, u"There is no current row."_s);
}

} // namespace

RowWalk::RowWalk(std::unique_ptr<RowSource> source)
    : m_source(std::move(source)) {
    standOnEnd(Direction::Forward);
}

std::optional<Row> RowWalk::rowAtEnd(Direction direction) {
    RowBatch batch(1);
    m_source->read(nullptr, direction, batch);
    if (batch.rows().empty())
        return std::nullopt;
    return std::move(batch.rows().front());
}

bool RowWalk::standOnEnd(Direction direction) {
    const ReadTransaction transaction(*m_source->connection());
    std::optional<Row> row = rowAtEnd(direction);
    if (row)
        standOn(std::move(*row));
    return row.has_value();
}

void RowWalk::moveToEnd(Direction direction) {
    if (standOnEnd(direction))
        return;
    leave();
    throwNoCurrentRecord();
}

void RowWalk::step(Direction direction) {
    if (!mayStep(direction))
        throwNoCurrentRecord();
    if (m_place == Place::BeforeFirst || m_place == Place::BehindLast)
        stepFromEnd(direction);
    else if (!isWindowGood() || !stepInWindow(direction))
        readBeyond(direction);
}

bool RowWalk::mayStep(Direction direction) const {
    const Place end = direction == Direction::Forward ? Place::BehindLast : Place::BeforeFirst;
    return m_place != Place::Nowhere && m_place != end;
}

void RowWalk::stepFromEnd(Direction direction) {
    if (!standOnEnd(direction))
        m_place = direction == Direction::Forward ? Place::BehindLast : Place::BeforeFirst;
}

bool RowWalk::isBof() {
    return m_place == Place::BeforeFirst || (!isOnRow() && isEmpty());
}

bool RowWalk::isEof() {
    return m_place == Place::BehindLast || (!isOnRow() && isEmpty());
}

bool RowWalk::isEmpty() {
    const ReadTransaction transaction(*m_source->connection());
    return !rowAtEnd(Direction::Forward);
}

const Row& RowWalk::current() {
    if (!isOnRow())
        throwNoCurrentRecord();
    if (!isWindowGood()) {
        const ReadTransaction transaction(*m_source->connection());
        refreshCurrent();
    }
    if (m_isDeleted)
        throw Error(Error::RecordDeleted, u"The row was deleted."_s);
    return m_window[m_current];
}

void RowWalk::standOn(Row row) {
    m_window.clear();
    m_window.push_back(std::move(row));
    m_changeCounter = m_source->connection()->changeCounter();
    m_isDeleted = false;
    m_readAhead = 0;
    arriveAt(0);
}

void RowWalk::leaveGap() {
    m_place = Place::Gap;
    m_isDeleted = true;
}

void RowWalk::renumberCurrent(qint64 number) {
    m_window[m_current].number = number;
}

void RowWalk::arriveAt(size_t place) {
    m_current = place;
    m_place = Place::OnRow;
    m_farthest = std::max(m_farthest.value_or(currentNumber()), currentNumber());
}

bool RowWalk::isWindowGood() const {
    return m_changeCounter && m_source->connection()->changeCounter() == m_changeCounter;
}

bool RowWalk::stepInWindow(Direction direction) {
    if (!isOnRow() || m_isDeleted)
        return false;
    if (direction == Direction::Forward ? m_current + 1 == m_window.size() : m_current == 0)
        return false;
    arriveAt(direction == Direction::Forward ? m_current + 1 : m_current - 1);
    return true;
}

void RowWalk::readBeyond(Direction direction) {
    const ReadTransaction transaction(*m_source->connection());
    refreshCurrent();
    if (stepInWindow(direction))
        return;
    RowBatch batch(nextReadAhead(direction));
    m_source->read(&m_window[m_current], direction, batch);
    if (batch.rows().empty())
        m_place = direction == Direction::Forward ? Place::BehindLast : Place::BeforeFirst;
    else
        addToWindow(std::move(batch.rows()), direction);
}

// To be called first in a transaction: reading the row takes the lock under which the counter
// belongs to what is read. A row that is gone stays in the window as the place to go on from.
void RowWalk::refreshCurrent() {
    std::optional<Row> row = m_source->rowNumbered(currentNumber());
    const std::optional<quint32> counter = m_source->connection()->changeCounter();
    if (counter && counter == m_changeCounter)
        return;
    m_isDeleted = m_place == Place::Gap || !row; // in the gap may stand a new row by now
    Row kept = m_isDeleted ? std::move(m_window[m_current]) : std::move(*row);
    m_window.clear();
    m_window.push_back(std::move(kept));
    m_current = 0;
    m_changeCounter = counter;
    m_readAhead = 0;
}

size_t RowWalk::nextReadAhead(Direction direction) {
    const bool goesOn = direction == m_direction && m_readAhead > 0;
    m_readAhead =
        goesOn ? std::min(ReadAheadGrowth * m_readAhead, LargestReadAhead) : FirstReadAhead;
    m_direction = direction;
    return m_readAhead;
}

// The rows come nearest first; the nearest becomes the current one.
void RowWalk::addToWindow(std::vector<Row> rows, Direction direction) {
    if (m_isDeleted)
        m_window.clear();
    m_isDeleted = false;
    if (direction == Direction::Forward) {
        const size_t behind = m_window.size();
        std::move(rows.begin(), rows.end(), std::back_inserter(m_window));
        arriveAt(behind);
    } else {
        std::move(rows.begin(), rows.end(), std::front_inserter(m_window));
        arriveAt(rows.size() - 1);
    }
    dropFarRows(direction);
}

void RowWalk::dropFarRows(Direction direction) {
    size_t bytes = 0;
    for (const Row& row : m_window)
        bytes += row.bytes();
    while (m_window.size() > LargestWindow || bytes > LargestWindowBytes) {
        const bool isFrontFar = direction == Direction::Forward;
        if (m_current == (isFrontFar ? 0 : m_window.size() - 1))
            return;
        bytes -= isFrontFar ? m_window.front().bytes() : m_window.back().bytes();
        if (isFrontFar) {
            m_window.pop_front();
            --m_current;
        } else {
            m_window.pop_back();
        }
    }
}
