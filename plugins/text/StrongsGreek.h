// An entry of Strong's Greek dictionary, taken apart.
#pragma once

#include <QString>

struct GreekEntry {
    QString greek; // in Greek letters
    QString word;  // in ours
    QString sound;
    QString origin;
    QString sense;          // its parts between semicolons
    QString usage;          // the English words that render it, between commas
    bool isDamaged = false; // its mark-up was, and its parts are guessed

    // A number that the dictionary leaves out has no word.
    bool isUsed() const { return !word.isEmpty() || !sense.isEmpty(); }
};

GreekEntry readGreekEntry(const QString& markup);

// A sense as the lexicon shows it: its parts marked "1) ", "2) " and so on. What would be taken for
// such a mark, "G25)", is bracketed: "[G25])".
QString numberedSenses(const QString& sense);
