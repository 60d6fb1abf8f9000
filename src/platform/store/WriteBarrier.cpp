#include "store/WriteBarrier.h"

#include "basic/Error.h"
#include "store/Connection.h"
#include "store/DatabaseState.h"
#include "store/Statement.h"
#include "store/Workspace.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

void checkPlace(const Connection& connection) {
    if (connection.isMoved())
        throw Error(
            Error::StorageFailure, u"The file %1 was replaced by another program. Try again."_s.arg(
                                       connection.shownName()));
}

} // namespace

// In a file that nobody may write, the transaction reads, which keeps others from committing too.
WriteBarrier::WriteBarrier(const Database& database) {
    const Connection& reading = database.connection();
    m_connection = std::make_unique<Connection>(reading.path(), Connection::Access::Write);
    m_transaction = std::make_unique<WriteTransaction>(*m_connection);
    checkPlace(reading);
    checkPlace(*m_connection);
    if (m_connection->isWritable())
        removeJournal();
}

WriteBarrier::~WriteBarrier() = default;

// What stands there under the writer's lock is of a program that died, and the engine had no use
// for it. It would be taken for the new file's.
void WriteBarrier::removeJournal() const {
    QFile::remove(m_connection->path() + u"-journal"_s);
}
