// The pages of a Jet database, decoded. Memory holds two of them.
#pragma once

#include "jet/JetText.h"

#include <QByteArrayView>
#include <QString>
#include <memory>
#include <optional>

// Where the fields of pages and definitions lie; all numbers are little-endian.
struct JetLayout {
    bool isJet3;
    int pageSize;
    int rowCount;          // of a data page; the rows' offsets follow
    int counter;           // of a table's definition: the last number given
    int definitionRows;    // ... its count of rows
    int definitionColumns; // ... the count of its columns, behind that of the variable ones
    int definitionIndexes; // ... the count of its real indexes
    int definitionMaps;    // ... the pointers to its usage maps
    int definitionEnd;     // ... behind which an entry for each index stands, then the columns
    int indexEntrySize;
    int columnEntrySize;
    int columnNumber; // of a column's entry: its place in a row's Null bits
    int nameLengthSize;
};

// The kinds of pages, in their first byte.
inline constexpr char JetDataPage = 1;
inline constexpr char JetDefinitionPage = 2;
inline constexpr char JetMapPage = 5;

// A row's place, as pointers in the file give it: the row in the low byte, the page above it.
struct JetPlace {
    quint32 page;
    int row;
    static JetPlace fromPointer(quint32 pointer) {
        return {pointer >> 8, static_cast<int>(pointer & 0xff)};
    }
};

// Bytes of a page with the flags of the row that they are.
struct JetSlot {
    int start;
    int size;
    int flags;

    static constexpr int IsPointer = 0x4000; // the row has moved; its new place is here
    static constexpr int IsHidden = 0x8000;  // deleted, or where a pointer leads to
};

class JetFile {
public:
    // Error::NotADatabase for a version that is not known and for an encrypted file.
    explicit JetFile(const QString& path);
    ~JetFile();
    Q_DISABLE_COPY_MOVE(JetFile)

    const JetLayout& layout() const { return *m_layout; }
    const JetText& text() const { return m_text; }
    const QString& name() const { return m_name; }

    // A page's bytes, good until the next call of the same function. A second page can be looked
    // at beside the first one. Damage when the file has no such page.
    QByteArrayView page(quint32 number);
    QByteArrayView sidePage(quint32 number);

    // The row of a data page; damage where it would not lie within the page.
    JetSlot slot(QByteArrayView page, int row) const;
    int slotCount(QByteArrayView page) const;

    // What is being read, for the messages.
    void beginTable(const QString& table) { m_reading = {table, 0, std::nullopt}; }
    void beginRows(qint64 rows) { m_reading.rows = rows; }
    void countRow() { ++m_reading.rowsRead; }

    // Throws Error::NotADatabase: the file is damaged, where, and what is wrong (a half sentence).
    [[noreturn]] void failAsDamaged(const QString& what) const;

    // The same where rows are missing and nothing else is known to be wrong.
    [[noreturn]] void failForLackOfRows() const;

    // The library's own handle, for JetTable.
    void* handle() const;

private:
    struct Library;
    struct Reading {
        QString table;
        qint64 rowsRead = 0;
        std::optional<qint64> rows; // none while the definition is read
    };
    void checkNumber(quint32 number) const;
    QString readablePart() const;

    QString m_name;
    std::unique_ptr<Library> m_library;
    const JetLayout* m_layout;
    JetText m_text;
    quint32 m_pageCount;
    Reading m_reading;
};

// Numbers within a page, whose place was checked.
quint16 jetShort(QByteArrayView bytes, qsizetype offset);
quint32 jetLong(QByteArrayView bytes, qsizetype offset);
