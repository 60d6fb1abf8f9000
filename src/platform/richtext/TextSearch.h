// Finding a text in another.
#pragma once

#include <QStringView>

struct TextSearch {
    bool wholeWord = false;
    bool matchCase = false; // off: every script's letters are found in either case
};

// The place of the first `wanted` in `text` that lies wholly in [start, end), or -1. An empty text
// is nowhere.
qsizetype
findText(QStringView text, QStringView wanted, qsizetype start, qsizetype end, TextSearch search);
