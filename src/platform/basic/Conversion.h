// Conversions of stored values, which may be Null, a number or a text, into what a handler needs.
// A conversion that cannot be made is an Error and changes nothing: an assignment whose right side
// fails under `attempt` leaves its left side as it was.
#pragma once

#include <QString>
#include <QVariant>

// Null is a QVariant without a value.
bool isNull(const QVariant& value);

// The text form: whole numbers decimal without blanks. Null is an Error.
QString toText(const QVariant& value);

// The number; a text that is no number is an Error (TypeMismatch), and so is Null.
double toNumber(const QVariant& value);

// The number as a whole number, halves to the even neighbour. Beyond the type is an Error
// (Overflow); Null and text that is no number as in toNumber.
int toInteger(const QVariant& value);

// `number` narrowed to 16 bits, to a byte, or to single precision; a number that does not fit is an
// Error (Overflow).
qint16 toInt16(double number);
quint8 toByte(double number);
float toSingle(double number);
