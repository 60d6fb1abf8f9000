// The table of the kinds of data files: by which tables the program knows them, and which fields it
// reads from where.
#pragma once

#include "store/DataFileInspection.h"

#include <QLatin1String>
#include <span>

struct TableNeeds {
    QLatin1String name;
    std::span<const QLatin1String> columns; // by their place; an empty name stands for any
    QLatin1String index;                    // empty for none
    int headword;                           // the place of the field by which rows are found, or -1
    bool isNumbered;                        // field 0 counts the rows from 1 without gaps
};

struct DataFileKind {
    QLatin1String title; // "a translation"
    std::span<const TableNeeds> tables;
};

// The kind of a file that has at least the first table of it; nullptr for a file of no kind.
const DataFileKind* kindOf(const QList<TableSummary>& tables);

// The table of a name, without regard to case; nullptr if there is none.
const TableSummary* tableNamed(const QList<TableSummary>& tables, QLatin1String name);

// What a table lacks, a sentence each.
QStringList lacksOf(const TableNeeds& needs, const TableSummary& table);
