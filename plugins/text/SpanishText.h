// What the Spanish text of 1909 needs beyond its mark-up. Its module holds the letter names of
// Psalm 119 and the subscriptions of the epistles as words of the verses, and has lost the blanks
// on both sides of some 300 added words.
#pragma once

#include "text/BookTable.h"
#include "text/MarkedText.h"

// Takes letter names and subscriptions out of a verse.
void correctSpanishText(const VerseAddress& address, MarkedText& verse);

// See AddedWordRule: a pronoun hangs on its verb ("vió" and "lo" are "viólo"), any other added word
// stands by itself.
bool lacksSpanishBlank(QStringView word, QStringView added);
