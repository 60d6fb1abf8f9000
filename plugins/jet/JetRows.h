// A walk through the rows of a table, in the table's own order. Memory does not grow with it.
#pragma once

#include "jet/JetValue.h"

class JetRows {
public:
    // One walk at a time on a file. The table must outlive it.
    explicit JetRows(JetTable& table);

    // The next row; false behind the last one. Damage where a page or row is not what it has to
    // be, and where there are fewer rows than the table says.
    bool next();

    // Values of the current row, until the next call of next().
    QVariant value(const JetColumn& column) const;
    QVariantList values() const; // of all columns, in their order

    // The rows met so far.
    qint64 count() const { return m_count; }

private:
    bool nextPage();
    QByteArrayView dataPage(quint32 number);
    void split(JetSlot slot);

    JetTable& m_table;
    JetFile& m_file;
    quint32 m_page = 0;
    int m_slot = 0;
    int m_slots = 0; // of the page
    qint64 m_count = 0;
};
