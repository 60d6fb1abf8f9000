// The red-letter prefix of a stored verse: character 30, the start in three digits, ":", the length
// in three digits, the text. It holds one run.
#pragma once

#include "text/MarkedText.h"

#include <optional>

// The run that stands for all runs of a verse: from the first to the last where no more than 20
// foreign characters lie between one and the next; otherwise the longest, the first on a tie.
// Nothing without a run.
std::optional<RedRun> runToStore(const QList<RedRun>& runs);

// The field `body` of a verse. A run that three digits cannot say is cut to 999 characters, and
// left out where it starts behind that.
QString storedBody(const MarkedText& verse);
