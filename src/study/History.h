// The verses that the user has been to, newest first (see core/Settings.h for the arrays).
#pragma once

#include "basic/Flag.h"

// While on, no visit is recorded: the list of visits is being browsed.
extern Flag NoHistory;

// Records a visit of the verse under the cursor, unless it is the newest one already, and unless
// the program is starting up. Without a current row nothing is recorded.
void AddToHistory();
