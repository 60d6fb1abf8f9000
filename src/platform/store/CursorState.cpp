#include "store/CursorState.h"

#include "basic/Error.h"
#include "store/Connection.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void throwNotSupported(const QString& text) {
    throw Error(Error::NotSupportedHere, text);
}

std::vector<StoredValue>
keyValues(const KeyIndex& index, const TableSchema& table, const QVariantList& keys) {
    if (keys.isEmpty() || keys.size() > static_cast<qsizetype>(index.columns.size()))
        throw Error(
            Error::InvalidPropertyValue,
            u"The index has %1 key fields, but %2 values are given."_s.arg(index.columns.size())
                .arg(keys.size()));
    std::vector<StoredValue> values;
    for (const QVariant& key : keys) {
        const int column = index.columns[values.size()];
        values.push_back(toStored(key, table.columns[static_cast<size_t>(column)].affinity));
    }
    return values;
}

} // namespace

CursorState::CursorState(
    std::shared_ptr<const void> owner, std::unique_ptr<RowSource> source, Abilities abilities)
    : m_owner(std::move(owner))
    , m_walk(std::make_unique<RowWalk>(std::move(source)))
    , m_abilities(abilities) {}

void CursorState::close() {
    checkOpen();
    m_edit.end();
    m_writer.reset();
    m_walk.reset();
    m_owner.reset();
}

void CursorState::checkOpen() const {
    if (isClosed())
        throw Error(Error::AlreadyClosed, u"The cursor is closed."_s);
}

// Every move, Seek and Find drops what was assigned and not written.
RowWalk& CursorState::leaveEdit() {
    checkOpen();
    m_edit.end();
    return *m_walk;
}

void CursorState::chooseIndex(const QString& name) {
    checkOpen();
    if (!m_abilities.isTable)
        throwNotSupported(u"Only a table cursor follows an index."_s);
    const auto& connection = source().connection();
    const KeyIndex index = readKeyIndex(connection, source().table(), name);
    auto walk =
        std::make_unique<RowWalk>(std::make_unique<TableRows>(connection, source().table(), index));
    m_edit.end();
    m_walk = std::move(walk);
}

TableRows& CursorState::rowsByIndex() const {
    TableRows* const rows = m_abilities.isTable ? dynamic_cast<TableRows*>(&source()) : nullptr;
    if (!rows || !rows->hasIndex())
        throwNotSupported(u"Only a table cursor that follows an index can seek."_s);
    return *rows;
}

void CursorState::seek(const QString& comparison, const QVariantList& keys) {
    checkOpen();
    TableRows& rows = rowsByIndex();
    if (comparison != u"=")
        throwNotSupported(u"Seek knows no comparison but \"=\"."_s);
    const std::vector<StoredValue> values = keyValues(rows.index(), rows.table(), keys);
    m_edit.end();
    const ReadTransaction transaction(connection());
    std::optional<Row> row = rows.firstWithKey(values);
    m_noMatch = !row;
    if (row)
        m_walk->standOn(std::move(*row));
    else
        m_walk->leave();
}

bool CursorState::noMatch() const {
    checkOpen();
    return m_noMatch;
}

void CursorState::moveFirst() {
    leaveEdit().moveFirst();
}

void CursorState::moveLast() {
    leaveEdit().moveLast();
}

void CursorState::step(Direction direction) {
    leaveEdit().step(direction);
}

bool CursorState::isBof() {
    checkOpen();
    return m_walk->isBof();
}

bool CursorState::isEof() {
    checkOpen();
    return m_walk->isEof();
}

RowFilter CursorState::beginFind(const QString& criteria) {
    checkOpen();
    if (m_abilities.isTable)
        throwNotSupported(u"A table cursor cannot search by criteria."_s);
    m_edit.end();
    m_noMatch = false;
    return {parseCriteria(criteria), source().table()};
}

void CursorState::findFirst(const QString& criteria) {
    const RowFilter filter = beginFind(criteria);
    find(filter, {});
}

void CursorState::findBeyond(const QString& criteria, Direction direction) {
    const RowFilter filter = beginFind(criteria);
    if (m_walk->isOnRow())
        find(filter, {direction, m_walk->currentNumber()});
    else if (m_walk->isEmpty())
        m_noMatch = true;
    else
        throw Error(Error::NoCurrentRecord, u"There is no current row to go on from."_s);
}

void CursorState::find(const RowFilter& filter, const RowStretch& stretch) {
    const ReadTransaction transaction(connection());
    RowScan scan(source().connection(), source().table(), {&filter, source().listed()}, stretch);
    const std::optional<qint64> number = scan.next();
    std::optional<Row> row = number ? source().rowNumbered(*number) : std::nullopt;
    m_noMatch = !row;
    if (row)
        m_walk->standOn(std::move(*row));
}

int CursorState::recordCount() {
    checkOpen();
    if (!m_abilities.isTable && !m_walk->farthest())
        return 0;
    const ReadTransaction transaction(connection());
    RowScan scan(source().connection(), source().table(), {nullptr, source().listed()});
    int count = 0;
    for (std::optional<qint64> number = scan.next(); number; number = scan.next()) {
        if (!m_abilities.isTable && *number > *m_walk->farthest())
            break;
        ++count;
    }
    return count;
}
