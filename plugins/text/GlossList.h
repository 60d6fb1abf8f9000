// Cuts texts of a dictionary at the marks that stand outside of brackets.
#pragma once

#include <QString>
#include <QStringList>

// The parts between the marks (a semicolon, a comma), trimmed; empty ones are left out.
QStringList topLevelParts(QStringView text, QChar mark);

// The place of the first such mark, or -1.
qsizetype topLevelIndexOf(QStringView text, QChar mark, qsizetype from = 0);
