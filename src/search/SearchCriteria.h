// The texts that the search windows hand to the store. What the user typed stands in them as he
// typed it, without escaping or trimming: it can spoil a text, which is then an Error of the
// search.
#pragma once

#include <QString>

// The word anywhere in a field, in double quotes: "*word*".
QString anywherePattern(const QString& word);

// The five patterns of a whole word, in double quotes, with `between` between them: a blank, the
// word, and behind it a blank or one of `marks`, in their order.
QString wholeWordPatterns(const QString& word, const QString& marks, const QString& between);

// The verse behind which a search of a scope begins: `testament` 0 both, 1 old, 2 new; `book` 0
// for all.
QString scopeStart(int testament, int book);

// The first verse of the Bible.
inline const QString FirstVerseCriteria = QStringLiteral("book = 1 and chapter = 1 and verse = 1");
