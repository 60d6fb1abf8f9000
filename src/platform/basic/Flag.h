// The program's switches are 16-bit whole numbers, since they are stored and compared as such.
#pragma once

#include <QtGlobal>

using Flag = qint16;

inline constexpr Flag On = -1;
inline constexpr Flag Off = 0;

constexpr Flag toFlag(bool value) {
    return value ? On : Off;
}
