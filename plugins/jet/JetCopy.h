// Copies the tables of a Jet database into a data file.
#pragma once

#include "jet/JetFile.h"
#include "store/DataFile.h"

// All tables of the user with all rows: the columns in the file's own order, the rows in the
// table's; tblMain gets the program's index. The table's order is that of the row numbers.
//
// A counter is the row's number, and goes on where it stood, if that keeps the table's order. If it
// does not, tblMain keeps its order, which searches follow, and its counter is a plain column; any
// other table, which may get new rows, keeps its counter and takes the counter's order.
//
// Error::NotADatabase for damage, a file without tables, and a tblMain without one of its fields.
void copyJetTables(JetFile& file, DataFileWriter& writer);
