#include "store/DatabaseState.h"

#include "basic/Error.h"
#include "store/Connection.h"
#include "store/CursorState.h"

using namespace Qt::StringLiterals;

DatabaseState::DatabaseState(std::shared_ptr<const Connection> connection)
    : m_connection(std::move(connection)) {}

void DatabaseState::checkOpen() const {
    if (isClosed())
        throw Error(Error::AlreadyClosed, u"The database is closed."_s);
}

const Connection& DatabaseState::connection() const {
    checkOpen();
    return *m_connection;
}

std::shared_ptr<CursorState> DatabaseState::openCursor(const QString& source, RecordsetType type) {
    checkOpen();
    std::shared_ptr<CursorState> cursor =
        isSelect(source) ? openSelect(source, type) : openTable(source, type);
    std::erase_if(m_cursors, [](const auto& known) { return known.expired(); });
    m_cursors.push_back(cursor);
    return cursor;
}

std::shared_ptr<CursorState>
DatabaseState::openTable(const QString& name, RecordsetType type) const {
    return std::make_shared<CursorState>(
        shared_from_this(),
        std::make_unique<TableRows>(m_connection, readTableSchema(m_connection, name)),
        CursorState::Abilities{type == dbOpenTable, type != dbOpenSnapshot});
}

std::shared_ptr<CursorState>
DatabaseState::openSelect(const QString& text, RecordsetType type) const {
    if (type == dbOpenTable)
        throw Error(Error::NotSupportedHere, u"A SELECT gives no table cursor."_s);
    const SelectStatement select = parseSelect(text);
    TableSchema table = readTableSchema(m_connection, select.table);
    std::optional<RowFilter> filter;
    if (select.hasCriteria)
        filter.emplace(select.criteria, table);
    std::vector<qint64> numbers;
    {
        const ReadTransaction transaction(*m_connection);
        RowScan scan(m_connection, table, {filter ? &*filter : nullptr, nullptr});
        while (const std::optional<qint64> number = scan.next())
            numbers.push_back(*number);
    }
    return std::make_shared<CursorState>(
        shared_from_this(),
        std::make_unique<ListedRows>(m_connection, std::move(table), std::move(numbers)),
        CursorState::Abilities{false, type != dbOpenSnapshot});
}

void DatabaseState::close() {
    checkOpen();
    const std::shared_ptr<DatabaseState> alive = shared_from_this(); // the last cursor may own it
    for (const std::weak_ptr<CursorState>& known : m_cursors) {
        const std::shared_ptr<CursorState> cursor = known.lock();
        if (cursor && !cursor->isClosed())
            cursor->close();
    }
    m_cursors.clear();
    m_connection.reset();
}
