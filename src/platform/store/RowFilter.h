// Criteria made ready for one table: evaluated on the engine's own values, row by row, without
// copying them. Nothing of a criteria text becomes SQL but the names of the columns it reads, and
// these come from the table.
#pragma once

#include "store/Criteria.h"
#include "store/TableSchema.h"
#include "store/TextMatch.h"

struct sqlite3_value;

class RowFilter {
public:
    // Error::ItemNotFound for a field that the table does not have.
    RowFilter(const Criterion& criteria, const TableSchema& table);
    ~RowFilter();

    // The columns whose values the filter reads, in the order in which it is given them.
    const std::vector<int>& columns() const { return m_columns; }

    // The number of the only row that can meet the criteria ("ID = 5"), so that no scan is needed.
    std::optional<qint64> onlyRow() const { return m_onlyRow; }

    bool isMetBy(sqlite3_value* const* values) const;

private:
    struct Node;

    Node compile(const Criterion& criteria, const TableSchema& table);
    void compileComparison(Node& node, const Criterion& criteria, const TableSchema& table);
    size_t slotOf(int column);
    void noteOnlyRow(const Criterion& criteria, const TableSchema& table);

    std::vector<int> m_columns;
    std::optional<qint64> m_onlyRow;
    std::unique_ptr<Node> m_root;
};
