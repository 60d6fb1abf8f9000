// The text of a field for a report.
#pragma once

#include "basic/Conversion.h"
#include "store/Recordset.h"

// Null gives a null text.
inline QString textOf(const Field& field) {
    const QVariant value = field.Value();
    return isNull(value) ? QString() : toText(value);
}
