// Keeps other programs from writing into a data file that is about to be replaced, so that nothing
// is lost which they would write between the reading of the old file and the new file's coming.
#pragma once

#include <QtGlobal>
#include <memory>

class Connection;
class Database;
class WriteTransaction;

// As long as it lives, each write of others fails as that into a file in use, and can be tried
// again; after the file was replaced, as that into one that was. Reading goes on.
//
// On POSIX systems the locks of a process on a file end when the process closes any handle of that
// file. So the barrier begins with a database that is open already, and while it lives nothing else
// of this program may open the file: no other database, and no QFile.
class WriteBarrier {
public:
    // The database may be closed before the barrier ends. Error::StorageFailure when another
    // program stays at writing, and when the file was replaced since the database was opened.
    explicit WriteBarrier(const Database& database);
    ~WriteBarrier();
    Q_DISABLE_COPY_MOVE(WriteBarrier)

private:
    void removeJournal() const;

    std::unique_ptr<Connection> m_connection;
    std::unique_ptr<WriteTransaction> m_transaction; // never committed
};
