// A table's definition as it stands in the file, checked before the library reads it: the library
// takes every length and number in it on trust.
#pragma once

#include "jet/JetFile.h"

#include <QHash>

class JetDefinition {
public:
    // The definition that begins on this page. Damage where anything leads out of it.
    JetDefinition(JetFile& file, quint32 page);

    // What the table claims to have.
    qint64 rowCount() const { return m_rowCount; }
    int columnCount() const { return m_columnCount; }

    // Columns that a row can have at most, deleted ones included.
    int largestRow() const { return m_largestRow; }
    bool hasVariableColumns() const { return m_hasVariableColumns; }

    // The last number that the table's counter gave.
    qint64 lastCounter() const { return m_lastCounter; }

    // The names of the columns, by their place in a row's Null bits.
    const QHash<int, QString>& names() const { return m_names; }

private:
    void readPages(quint32 page);
    void readCounts();
    void checkMaps();
    void checkMap(JetPlace place);
    void readNames();
    QByteArrayView part(qsizetype offset, qsizetype size) const;

    JetFile& m_file;
    QByteArray m_bytes; // of all its pages, the heads of continuations left out
    qint64 m_rowCount = 0;
    qint64 m_lastCounter = 0;
    int m_columnCount = 0;
    int m_largestRow = 0;
    bool m_hasVariableColumns = false;
    QHash<int, QString> m_names;
};
