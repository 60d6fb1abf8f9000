#include "store/Workspace.h"

#include "basic/Error.h"
#include "desktop/HostPath.h"
#include "store/DatabaseState.h"
#include "store/OpenDataFile.h"

#include <vector>

using namespace Qt::StringLiterals;

class WorkspaceState {
public:
    std::shared_ptr<DatabaseState> open(const QString& path, OpenMode mode) {
        checkOpen();
        auto database = std::make_shared<DatabaseState>(
            openDataFile(hostPath(path), mode == OpenMode::ReadOnly));
        std::erase_if(m_databases, [](const auto& known) { return known.expired(); });
        m_databases.push_back(database);
        return database;
    }

    void close() {
        checkOpen();
        m_isClosed = true;
        for (const std::weak_ptr<DatabaseState>& known : m_databases) {
            const std::shared_ptr<DatabaseState> database = known.lock();
            if (database && !database->isClosed())
                database->close();
        }
        m_databases.clear();
    }

private:
    void checkOpen() const {
        if (m_isClosed)
            throw Error(Error::AlreadyClosed, u"The workspace is closed."_s);
    }

    std::vector<std::weak_ptr<DatabaseState>> m_databases;
    bool m_isClosed = false;
};

namespace {

template <class State>
State& stateOf(const std::shared_ptr<State>& state) {
    if (!state)
        throw Error(Error::ObjectNotSet, u"There is no open database here."_s);
    return *state;
}

} // namespace

Database::Database() = default;

Database::Database(std::shared_ptr<DatabaseState> state)
    : m_state(std::move(state)) {}

Recordset Database::OpenRecordset(const QString& source, RecordsetType type) {
    return Recordset(stateOf(m_state).openCursor(source, type));
}

const Connection& Database::connection() const {
    return stateOf(m_state).connection();
}

void Database::Close() {
    stateOf(m_state).close();
}

Workspace::Workspace() = default;

Workspace::Workspace(std::shared_ptr<WorkspaceState> state)
    : m_state(std::move(state)) {}

Database Workspace::OpenDatabase(const QString& path, OpenMode mode) {
    return Database(stateOf(m_state).open(path, mode));
}

void Workspace::Close() {
    stateOf(m_state).close();
}

Workspace DBEngine::CreateWorkspace(
    const QString& /*name*/, const QString& /*user*/, const QString& /*password*/) {
    return Workspace(std::make_shared<WorkspaceState>());
}
