#include "study/History.h"

#include "basic/Conversion.h"
#include "basic/DoEvents.h"
#include "basic/Error.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "desktop/Desktop.h"

#include <QLocale>
#include <algorithm>

Flag NoHistory = Off;

namespace {

template <class Value, class NewValue>
void shiftIn(std::array<Value, HistoryCount>& entries, const NewValue& newest) {
    std::copy_backward(entries.begin(), entries.end() - 1, entries.end());
    entries.front() = newest;
}

float numberIn(int field) {
    return toSingle(toNumber(rsBible.Fields(field).Value()));
}

void recordVisit() {
    const float book = numberIn(1);
    const float chapter = numberIn(2);
    const float verse = numberIn(3);
    if (NoHistory == On || StartingUp == On)
        return;
    DoEvents();
    if (book == HistoryBook[0] && chapter == HistoryChapter[0] && verse == HistoryVerse[0])
        return;
    shiftIn(HistoryBook, book);
    shiftIn(HistoryChapter, chapter);
    shiftIn(HistoryVerse, verse);
    shiftIn(HistoryDate, QLocale().toString(desktop().now(), QLocale::ShortFormat));
}

} // namespace

void AddToHistory() {
    attempt([] { recordVisit(); });
}
