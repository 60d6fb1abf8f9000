// A cursor on the rows of one table or SELECT.
//
// A table cursor (type 1) follows the index chosen by Index, or the table's own order without one,
// and offers Seek. A dynaset (type 2) follows the table's own order (row order) and offers the
// Find operations; the dynaset of a SELECT holds the rows that met its criteria when it was opened,
// in row order. Both can be edited and both see every committed change of a row at once, also
// another program's. One step costs one indexed step, whatever the table's size.
//
// A snapshot (type 4) is a dynaset that cannot be edited. No cursor holds a lock between
// operations: other programs can write at any time.
//
// Every operation throws Error::ObjectNotSet on a handle that stands on nothing,
// Error::AlreadyClosed after Close, and Error::StorageFailure (with the engine's text) when the
// file cannot be read or written. A failed operation leaves cursor and file as they were.
#pragma once

#include <QString>
#include <QVariant>
#include <memory>

class CursorState;

enum RecordsetType { dbOpenTable = 1, dbOpenDynaset = 2, dbOpenSnapshot = 4 };

// One field of a cursor's current row (or of the row that AddNew has begun).
// Values: Null (a QVariant without a value), qlonglong, double, QString, QByteArray.
class Field {
public:
    // Error::NoCurrentRecord without a current row; RecordDeleted if the row is gone by now.
    QVariant Value() const;

    // Takes part in the next Update. Error::UpdateWithoutEdit outside of Edit or AddNew;
    // DataTypeConversion for a text that is no number in a column of numbers.
    void setValue(const QVariant& value);
    Field& operator=(const QVariant& value);

    // Assigns the other field's value; a field is never made to stand for another.
    Field& operator=(const Field& other);
    Field(const Field& other) = default;

    QString Name() const;

private:
    friend class Recordset;
    Field(std::shared_ptr<CursorState> cursor, int ordinal);

    std::shared_ptr<CursorState> m_cursor;
    int m_ordinal;
};

class Recordset {
public:
    Recordset();

    // Releases the cursor. Error::AlreadyClosed if it is closed.
    void Close();

    // Orders a table cursor by an index of its table and stands on the first row.
    // Errors: NotAnIndex; NotSupportedHere on a dynaset.
    void Index(const QString& name);

    // Stands on the row whose key equals the values, given in key order as numbers or numeric
    // texts; fewer values than key fields match the first row of that head. The only comparison is
    // "=". On no match NoMatch holds and there is no current row (neither Bof nor Eof holds). Texts
    // in a key of texts are compared as they stand.
    // Errors: NotSupportedHere on a dynaset or without an index; DataTypeConversion for a text that
    // is no number; InvalidPropertyValue for more values than key fields, or none.
    template <class... Keys>
    void Seek(const QString& comparison, Keys... keys) {
        seek(comparison, {QVariant(keys)...});
    }

    // Whether the last Seek or Find failed; false on a new cursor.
    bool NoMatch() const;

    // Stand on the first or the last row. On an empty cursor there is no current row from then on,
    // and that is an Error::NoCurrentRecord.
    void MoveFirst();
    void MoveLast();

    // One row on or back. Past the last row Eof holds, before the first Bof, and there is no
    // current row; one more step that way is an Error::NoCurrentRecord. Back from Eof is the last
    // row, on from Bof the first. After Delete the next and previous rows are those of the deleted
    // one. After a failed Seek a step is an Error::NoCurrentRecord.
    void MoveNext();
    void MovePrevious();

    // True only after a move off that end; both where there is no current row and the cursor has no
    // row at all by now.
    bool Bof() const;
    bool Eof() const; // EOF is a macro of the C library

    // Stand on the first, next or previous row that meets the criteria (see Criteria.h). On no
    // match NoMatch holds and the current row stays. NoMatch is cleared before the criteria are
    // read. Errors: SyntaxInCriteria; ItemNotFound for an unknown field; NotSupportedHere on a
    // table cursor; NoCurrentRecord for FindNext and FindPrevious without a current row, except
    // on an empty cursor, which matches nothing.
    void FindFirst(const QString& criteria);
    void FindNext(const QString& criteria);
    void FindPrevious(const QString& criteria);

    // A field of the current row. Error::ItemNotFound for an ordinal or a name (case-blind) that
    // the cursor does not have. Reading and writing it: see Field.
    Field Fields(int ordinal);
    Field Fields(const QString& name);

    // Begin a write cycle; what an unfinished one assigned is dropped, and so it is by every move,
    // Seek or Find. Errors: NotUpdatable on a file opened for reading; Edit without a current row
    // NoCurrentRecord.
    void Edit();
    void AddNew();

    // Writes the assigned fields, and only these, durably: when it returns, the row survives a
    // loss of power. Values equal to the stored ones write nothing. The current row stays; a new
    // row takes its place at the cursor's order and gets its number from the database.
    // Errors: UpdateWithoutEdit; RecordDeleted; StorageFailure (the cycle goes on, the caller may
    // try again).
    void Update();

    // Removes the current row durably; there is then no current row until a move.
    void Delete();

    // Table cursor: the number of rows. Dynaset: the number of rows up to the farthest one visited
    // so far, so callers move last first.
    int RecordCount();

private:
    friend class Database;
    explicit Recordset(std::shared_ptr<CursorState> state);
    void seek(const QString& comparison, const QVariantList& keys);

    std::shared_ptr<CursorState> m_state;
};
