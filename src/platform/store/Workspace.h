// The table store: workspaces, the databases opened in them, and (Recordset.h) cursors on their
// tables. One database is one SQLite file with the project's application id.
//
// Workspace, Database and Recordset are handles: a copy is another handle on the same object, a
// default-made one stands on nothing, and each operation on it throws Error::ObjectNotSet. An
// object lives until it is closed or its last handle is gone.
//
// Paths are the program's (see desktop/HostPath.h); the store turns them into the host's.
#pragma once

#include "store/Recordset.h"

#include <QString>
#include <memory>

class Connection;
class WorkspaceState;
class DatabaseState;

// One open file, shared with other programs, for reading and writing.
class Database {
public:
    Database();

    // A cursor on the first row of a table, or of the result of a SELECT text. On an empty table
    // both Bof and Eof hold. Constant time for a table; a SELECT is carried out at once.
    // Errors: NotATable when the file has no such table, SyntaxInCriteria for a SELECT that the
    // dialect does not know, NotSupportedHere for type 1 on a SELECT.
    Recordset OpenRecordset(const QString& source, RecordsetType type = dbOpenDynaset);

    // Closes the database and every cursor on it. Error::AlreadyClosed if it is closed.
    void Close();

private:
    friend class Workspace;
    friend class WriteBarrier;
    explicit Database(std::shared_ptr<DatabaseState> state);

    const Connection& connection() const;

    std::shared_ptr<DatabaseState> m_state;
};

enum class OpenMode { Shared, ReadOnly };

class Workspace {
public:
    Workspace();

    // Opens a file of the store. A file that cannot be written is opened for reading, and Edit,
    // AddNew and Delete on its cursors throw Error::NotUpdatable.
    // Errors, each with the file's name and what is wrong: FileNotFound; NotADatabase for a file
    // that is empty, no data file, cut off or damaged; StorageFailure when it stays locked.
    Database OpenDatabase(const QString& path, OpenMode mode = OpenMode::Shared);

    // Closes the workspace and every database opened in it. Error::AlreadyClosed if it is closed.
    void Close();

private:
    friend class DBEngine;
    explicit Workspace(std::shared_ptr<WorkspaceState> state);

    std::shared_ptr<WorkspaceState> m_state;
};

class DBEngine {
public:
    // Always succeeds; the names and the password are not checked against anything.
    static Workspace
    CreateWorkspace(const QString& name, const QString& user, const QString& password);
};
