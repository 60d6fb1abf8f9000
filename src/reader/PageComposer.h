// Turns the position of the cursor into the text of a page: hand-written RTF, kept to the letter.
#pragma once

#include <QString>

struct ComposedPage {
    QString rtf;

    // The number of the verse behind the last one, counted from 0; where the table ended first, the
    // number of verses written.
    int shown = 0;
};

// The page from the current row to the end of its chapter, or, without `WholeChapter`, of
// VersesPerPage and one verses. The cursor stands behind it afterwards, or on the table's last row.
// A row that cannot be read leaves its part of the page empty.
ComposedPage composePage(bool WholeChapter);

// The plain text of VersesPerPage and one verses from the cursor on, chapters no matter.
QString composePlainPage();

// A verse text without its red-letter prefix, or, with `apply` and unless the user has switched red
// letters off, with the RTF codes that redden the run the prefix names. A text that would come out
// empty is given back as it is stored.
QString RedLetterText(const QString& text, bool apply);

// The cursor's place among its rows, where a cursor that cannot tell counts as ended.
bool isBehindLastRow();

// Stands the cursor on its first row if it stands before it; says whether it did.
bool returnToFirstRow();

// Back by up to `count` rows, to the first row at most.
void stepBack(int count);

// The name of the open translation as titles show it.
const QString& translationName();
