// A table and cursors on it as plain containers: slow, simple, and what the store is held against.
#pragma once

#include "StoreFixture.h"

#include <map>
#include <set>

using ModelRow = QVariantList;

// Null, then numbers, then texts (none beyond the characters of one UTF-16 unit).
int compareKeys(const QVariant& left, const QVariant& right);

struct ModelTable {
    std::map<qint64, ModelRow> rows;

    qint64 add(const ModelRow& row);
};

class ModelCursor {
public:
    enum class Place { OnRow, Gap, BeforeFirst, BehindLast, Nowhere };
    using Test = std::function<bool(const ModelRow&)>;
    using Outcome = std::optional<Error::Number>;

    // In the order of key columns, and rows of one key by their number. A cursor on chosen rows
    // holds those that pass the test now.
    ModelCursor(ModelTable& table, std::vector<int> keyColumns, const Test& chosen = {});

    // Each does what the store's operation does and tells the error it should give.
    Outcome moveToEnd(bool isFirst);
    Outcome step(bool isForward);
    Outcome read(ModelRow& row);
    Outcome write(int column, const QVariant& value);
    Outcome remove();
    void add(const ModelRow& row);
    void seek(const QVariantList& key);
    Outcome find(const Test& test, bool isForward, bool fromStart);

    bool isBof() const;
    bool isEof() const;
    bool noMatch() const { return m_noMatch; }
    qint64 rowNumber() const { return m_number; }
    int recordCount(bool isTable) const;

private:
    struct Position {
        QVariantList key;
        qint64 number;
    };

    std::vector<qint64> members() const;
    bool isMember(qint64 number) const;
    bool isGone() const { return m_table.rows.count(m_number) == 0; }
    Position positionOf(qint64 number) const;
    bool isBefore(const Position& left, const Position& right) const;
    std::optional<qint64> nearest(const std::optional<Position>& from, bool isForward) const;
    void lookAtCurrent();
    void standOn(qint64 number);

    ModelTable& m_table;
    std::vector<int> m_keyColumns;
    std::optional<std::set<qint64>> m_listed;
    Place m_place = Place::Nowhere;
    qint64 m_number = 0;
    Position m_lastSeen{};
    std::optional<qint64> m_farthest;
    bool m_noMatch = false;
};
