// The SELECT text of a query.
#pragma once

#include <QString>

// What the query window says: the words as typed, the second of which may be empty, and the rows of
// the two lists.
struct QueryChoice {
    QString firstWord;
    QString secondWord;
    bool both = false;
    bool wholeWords = false;
    int scope = 0;
    int book = 0;
};

QString queryText(const QueryChoice& choice);
