// Looks over a whole data file: what it holds, and whether the engine can read all of it.
#pragma once

#include <QString>
#include <QStringList>
#include <memory>

class Connection;

struct TableSummary {
    QString name;
    QStringList columns; // in their order
    QStringList indexes;
    qint64 rows = 0;
};

class DataFileInspection {
public:
    // Opens the file for reading. Errors as Workspace::OpenDatabase.
    explicit DataFileInspection(const QString& path);

    // The file's tables in the order in which they were made. Error::StorageFailure where the
    // engine cannot read them.
    QList<TableSummary> tables() const;

    // What the engine finds wrong with the file's structure, a line each, 20 at the most; empty for
    // a sound file. Reads all of it.
    QStringList damage() const;

private:
    std::shared_ptr<const Connection> m_connection;
};
