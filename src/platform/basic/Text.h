// The text functions of the program's own vocabulary. Positions count from 1.
#pragma once

#include <QString>

// The text form of a number: decimal, with a leading blank in the place of a missing sign, without
// a zero before the point (" 5", "-5", " .6").
QString Str(double number);

// The number at the head of a text: blanks are skipped, reading stops at the first character that
// cannot belong to a decimal number. No number, and one beyond a double, gives 0. Never fails.
double Val(const QString& text);

// The text without blanks (and only blanks) at both ends.
QString Trim(const QString& text);

// `length` characters from position `start`, or the rest of the text. A start behind the end gives
// an empty text; a start below 1 or a length below 0 is an Error.
QString Mid(const QString& text, qsizetype start);
QString Mid(const QString& text, qsizetype start, qsizetype length);

// The first `length` characters; a length below 0 is an Error.
QString Left(const QString& text, qsizetype length);

// The place of `find` in `text` at or behind `start`, or 0.
qsizetype InStr(
    qsizetype start, const QString& text, const QString& find,
    Qt::CaseSensitivity comparison = Qt::CaseSensitive);
qsizetype InStr(const QString& text, const QString& find);
