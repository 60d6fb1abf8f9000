// Makes a data file of the store: a new file is filled beside its destination and takes its place
// whole, or not at all.
#pragma once

#include <QList>
#include <QString>
#include <QVariant>
#include <memory>

// What makes a file one of ours, in the header of the file.
inline constexpr int DataFileApplicationId = 0x4C756D76; // "Lumv"

// A column of a table whose shape comes from data.
struct NewColumn {
    enum class Kind {
        Number,  // whole
        Counter, // the row's number, which the table gives and never gives twice; one a table
        Real,
        Text,
        Bytes,
    };
    QString name;
    Kind kind;
};

// Every operation throws Error::StorageFailure, with what is wrong, when the file cannot be
// written, and Error::AlreadyClosed when the writer is done.
class DataFileWriter {
public:
    // Begins a file that is to stand at `path` (a path of the host). Nothing appears there yet.
    explicit DataFileWriter(const QString& path);

    // Drops what was begun and not finished.
    ~DataFileWriter();

    // Runs one statement of the schema (CREATE TABLE, CREATE INDEX), written in code and never
    // built from data.
    void execute(const char* statement);

    // Creates a table with names that may hold anything but the character 0.
    void createTable(const QString& table, const QList<NewColumn>& columns);

    // The last number that the table's counter has given: the next row gets a higher one, whatever
    // rows there are.
    void setLastNumber(const QString& table, qint64 number);

    // Adds a row; the values in the order of the table's columns. A QVariant without a value is
    // Null.
    void insert(const QString& table, const QVariantList& values);

    // Writes the file to disk and puts it in its place, over a file that stands there, which no
    // program may be writing at that moment. Afterwards the writer is done; after an Error too,
    // and then nothing of the new file is left.
    void finish();

    Q_DISABLE_COPY_MOVE(DataFileWriter)

private:
    class State;
    State& state() const;

    std::unique_ptr<State> m_state; // gone when the writer is done
};

// The schemas, each creating its tables and indexes.
void createTranslationSchema(DataFileWriter& writer); // tblMain with VerseIndex
void createTopicsSchema(DataFileWriter& writer);      // tblTopicName, tblData
void createInfoTable(DataFileWriter& writer);         // tblInfo(title, source, licence, date)
