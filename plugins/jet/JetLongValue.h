// Memos and OLE objects: values that mostly lie outside of their row.
#pragma once

#include "jet/JetFile.h"

// The largest one that is taken for real, in bytes; a damaged file may claim more.
inline constexpr qint64 LargestLongValue = qint64(32) * 1024 * 1024;

// The value's bytes, by what stands in the row. Damage when they are not all there, or more of
// them. Leaves the page alone that JetFile::page read last.
QByteArray readLongValue(JetFile& file, QByteArrayView inRow);
