#include "store/RowFilter.h"

#include <algorithm>
#include <cmath>
#include <sqlite3.h>

struct RowFilter::Node {
    Criterion::Kind kind = Criterion::Kind::And;
    size_t slot = 0;
    std::optional<double> number;       // of a comparison with a number
    std::u32string text;                // of a comparison with a text, folded
    std::optional<LikePattern> pattern; // of Like
    std::vector<Node> operands;         // of And and Or

    bool isMetBy(sqlite3_value* const* values) const;
    bool isMetByValue(sqlite3_value* value) const;
    bool isMetByOrder(int order) const;
};

namespace {

// Where every whole number is a double of its own, a comparison with a double is exact.
constexpr double ExactWholeNumbers = 9007199254740992.0;

std::string_view textOf(sqlite3_value* value) {
    const auto* const text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    if (!text) // out of memory
        return {};
    return {text, static_cast<size_t>(sqlite3_value_bytes(value))};
}

std::optional<double> numberOf(sqlite3_value* value) {
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
    case SQLITE_FLOAT:
        return sqlite3_value_double(value);
    case SQLITE_TEXT:
        return numberFromText(textOf(value));
    default:
        return std::nullopt;
    }
}

int orderOf(double left, double right) {
    return left < right ? -1 : left > right ? 1 : 0;
}

} // namespace

bool RowFilter::Node::isMetByOrder(int order) const {
    return kind == Criterion::Kind::Equal  ? order == 0
           : kind == Criterion::Kind::Less ? order < 0
                                           : order > 0;
}

bool RowFilter::Node::isMetByValue(sqlite3_value* value) const {
    if (sqlite3_value_type(value) == SQLITE_NULL)
        return false;
    if (pattern)
        return pattern->matches(textOf(value));
    if (!number)
        return isMetByOrder(compareFolded(textOf(value), text));
    const std::optional<double> held = numberOf(value);
    return held && isMetByOrder(orderOf(*held, *number));
}

bool RowFilter::Node::isMetBy(sqlite3_value* const* values) const {
    const auto isMet = [&](const Node& operand) { return operand.isMetBy(values); };
    switch (kind) {
    case Criterion::Kind::And:
        return std::all_of(operands.begin(), operands.end(), isMet);
    case Criterion::Kind::Or:
        return std::any_of(operands.begin(), operands.end(), isMet);
    default:
        return isMetByValue(values[slot]);
    }
}

RowFilter::RowFilter(const Criterion& criteria, const TableSchema& table)
    : m_root(std::make_unique<Node>(compile(criteria, table))) {
    noteOnlyRow(criteria, table);
}

RowFilter::~RowFilter() = default;

bool RowFilter::isMetBy(sqlite3_value* const* values) const {
    return m_root->isMetBy(values);
}

RowFilter::Node RowFilter::compile(const Criterion& criteria, const TableSchema& table) {
    Node node;
    node.kind = criteria.kind;
    if (criteria.kind != Criterion::Kind::And && criteria.kind != Criterion::Kind::Or)
        compileComparison(node, criteria, table);
    for (const Criterion& operand : criteria.operands)
        node.operands.push_back(compile(operand, table));
    return node;
}

void RowFilter::compileComparison(Node& node, const Criterion& criteria, const TableSchema& table) {
    const int column = table.columnNamed(criteria.field);
    if (column < 0)
        table.failForLackOf(u'"' + criteria.field + u'"');
    node.slot = slotOf(column);
    if (criteria.kind == Criterion::Kind::Like)
        node.pattern.emplace(criteria.value.toString());
    else if (criteria.value.typeId() == QMetaType::Double)
        node.number = criteria.value.toDouble();
    else
        node.text = folded(criteria.value.toString());
}

size_t RowFilter::slotOf(int column) {
    const auto found = std::find(m_columns.begin(), m_columns.end(), column);
    const auto slot = static_cast<size_t>(found - m_columns.begin());
    if (found == m_columns.end())
        m_columns.push_back(column);
    return slot;
}

void RowFilter::noteOnlyRow(const Criterion& criteria, const TableSchema& table) {
    if (criteria.kind == Criterion::Kind::And) {
        for (const Criterion& operand : criteria.operands)
            noteOnlyRow(operand, table);
        return;
    }
    const bool isEqualNumber =
        criteria.kind == Criterion::Kind::Equal && criteria.value.typeId() == QMetaType::Double;
    if (!isEqualNumber
        || !table.columns[static_cast<size_t>(table.columnNamed(criteria.field))].isRowNumber)
        return;
    const double number = criteria.value.toDouble();
    if (std::floor(number) == number && std::abs(number) < ExactWholeNumbers)
        m_onlyRow = static_cast<qint64>(number);
}
