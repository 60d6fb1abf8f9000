#include "reader/VerseRow.h"

#include "basic/Conversion.h"
#include "basic/Error.h"
#include "core/GlobalCode.h"

using namespace Qt::StringLiterals;

std::optional<VerseRow> currentVerseRow() {
    std::optional<VerseRow> row;
    attempt([&] {
        row = VerseRow{
            rsBible.Fields(0).Value(), rsBible.Fields(1).Value(), rsBible.Fields(2).Value(),
            rsBible.Fields(3).Value()};
    });
    return row;
}

bool seekVerseRow(const VerseRow& row) {
    bool found = false;
    attempt([&] {
        rsBible.Seek(u"="_s, row.book, row.chapter, row.verse);
        found = !rsBible.NoMatch();
    });
    return found;
}

void findVerseRow(const VerseRow& row) {
    attempt([&] { rsBible.FindFirst(u"ID = "_s + toText(row.id)); });
}
