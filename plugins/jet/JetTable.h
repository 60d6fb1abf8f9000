// A table of a Jet database as the library knows it: its columns, its pages, the parts of its rows.
#pragma once

#include "jet/JetDefinition.h"

#include <vector>

struct S_MdbTableDef;

// The numbers by which the file names the kinds of columns.
enum class JetType {
    Bool = 1,
    Byte = 2,
    Integer = 3,
    Long = 4,
    Money = 5,
    Single = 6,
    Double = 7,
    Date = 8,
    Binary = 9,
    Text = 10,
    Ole = 11,
    Memo = 12,
    Guid = 15,
    Numeric = 16,
    Bytes = 17, // of tables that other programs keep for themselves
    Complex = 18,
    BigInteger = 19,
};

struct JetColumn {
    QString name;
    JetType type;
    bool isCounter;
    int scale;  // of a Numeric: the digits behind the point
    int number; // its place in a row's Null bits
    int place;  // among the parts of a row
};

// One column's part of a row: bytes of the page.
struct JetPart {
    bool isNull;
    QByteArrayView bytes;
};

class JetTable {
public:
    // The table defined on this page; `name` is for messages. The file must outlive it.
    JetTable(JetFile& file, quint32 page, const QString& name);
    ~JetTable();
    Q_DISABLE_COPY_MOVE(JetTable)

    JetFile& file() const { return m_file; }
    const QString& name() const { return m_name; }
    quint32 page() const { return m_page; }
    const JetDefinition& definition() const { return *m_definition; }

    // In the file's own order.
    const std::vector<JetColumn>& columns() const { return m_columns; }

    // The column of a name, without regard to case; nullptr if there is none.
    const JetColumn* columnNamed(const QString& name) const;

    // The page of rows behind this one (0: the first); 0 behind the last. Each is visited once.
    quint32 nextPage(quint32 page);

    // Takes apart the row that lies at this place of the page read last by JetFile::page. Damage
    // where the row does not fit together. The parts are good until that page is left.
    void splitRow(const JetSlot& row);
    const JetPart& part(const JetColumn& column) const {
        return m_parts[static_cast<size_t>(column.place)];
    }

private:
    struct Library;
    void readColumns();
    void checkRow(QByteArrayView row) const;
    int tailSize(QByteArrayView row) const;

    JetFile& m_file;
    QString m_name;
    quint32 m_page;
    std::unique_ptr<JetDefinition> m_definition;
    std::unique_ptr<Library> m_library;
    std::vector<JetColumn> m_columns;
    std::vector<JetPart> m_parts;
};
