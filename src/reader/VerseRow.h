// Which row of which verse: to tell whether the cursor still stands where something was read.
#pragma once

#include <QVariant>
#include <optional>

struct VerseRow {
    QVariant id;
    QVariant book;
    QVariant chapter;
    QVariant verse;

    bool operator==(const VerseRow&) const = default;
};

// The row under the cursor; none where there is no current row.
std::optional<VerseRow> currentVerseRow();

// Stands the cursor on a verse by its address; says whether it is there. The cursor of a query is
// left alone.
bool seekVerseRow(const VerseRow& row);

// Stands a dynaset back on a row by its number, where it can be found.
void findVerseRow(const VerseRow& row);
