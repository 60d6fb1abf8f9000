// Fonts that a text names and the machine may lack.
#pragma once

#include <QString>

// The family to show for `wanted`: itself, or where the machine lacks it and a family with the same
// widths is known, that one, so that lines break where they were meant to.
QString availableFamily(const QString& wanted);
