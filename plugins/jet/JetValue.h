// The values of a row as the store takes them.
#pragma once

#include "jet/JetTable.h"

#include <QVariant>

// Null (a QVariant without a value), qlonglong, double, QString or QByteArray. Reads the pages that
// a long value lies on. Damage where the bytes are no value of the column's type.
QVariant jetValue(JetFile& file, const JetColumn& column, const JetPart& part);
