// One open database and the cursors on it.
#pragma once

#include "store/Recordset.h"

#include <QString>
#include <memory>
#include <vector>

class Connection;

class DatabaseState : public std::enable_shared_from_this<DatabaseState> {
public:
    explicit DatabaseState(std::shared_ptr<const Connection> connection);

    std::shared_ptr<CursorState> openCursor(const QString& source, RecordsetType type);

    // Closes the cursors first, so that nothing holds the file any more.
    void close();
    // Error::AlreadyClosed if it is closed.
    const Connection& connection() const;
    bool isClosed() const { return !m_connection; }

private:
    std::shared_ptr<CursorState> openTable(const QString& name, RecordsetType type) const;
    std::shared_ptr<CursorState> openSelect(const QString& text, RecordsetType type) const;
    void checkOpen() const;

    std::shared_ptr<const Connection> m_connection;
    std::vector<std::weak_ptr<CursorState>> m_cursors;
};
