// What every data file says of itself.
#pragma once

#include "readers/VerseSource.h"

class DataFileWriter;

// Makes tblInfo with its one row, dated today.
void writeInfo(DataFileWriter& writer, const SourceInfo& info);
