// Reads text in RTF 1. The reader fails on nothing: unknown words are passed over, surplus closing
// braces are ignored (and what follows them is read on in the same format), missing ones are fine,
// raw Unicode is accepted, and neither deep nesting nor large numbers cost memory or time.
//
// A paragraph mark ends its paragraph: what follows the last mark is a paragraph of its own only if
// it holds more than blanks.
#pragma once

#include "richtext/RichText.h"

#include <QString>

// Whether `text` begins as RTF does.
bool isRtf(const QString& text);

// The text that `text` describes; one that is no RTF is taken as it stands. The text that comes out
// is never longer than the one that went in.
RichText readRtf(const QString& text);
