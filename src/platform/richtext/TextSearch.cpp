#include "richtext/TextSearch.h"

#include <QChar>
#include <algorithm>

namespace {

bool belongsToWord(char32_t character) {
    return QChar::isLetterOrNumber(character) || QChar::isMark(character) || character == U'_';
}

char32_t characterAt(QStringView text, qsizetype place) {
    const QChar unit = text[place];
    const bool paired = unit.isHighSurrogate() && place + 1 < text.size();
    return paired ? QChar::surrogateToUcs4(unit, text[place + 1]) : char32_t(unit.unicode());
}

char32_t characterBefore(QStringView text, qsizetype place) {
    const QChar unit = text[place - 1];
    const bool paired = unit.isLowSurrogate() && place > 1;
    return paired ? QChar::surrogateToUcs4(text[place - 2], unit) : char32_t(unit.unicode());
}

bool isWholeWord(QStringView text, qsizetype start, qsizetype end) {
    const bool joinedBefore = start > 0 && belongsToWord(characterBefore(text, start));
    const bool joinedAfter = end < text.size() && belongsToWord(characterAt(text, end));
    return !joinedBefore && !joinedAfter;
}

} // namespace

qsizetype
findText(QStringView text, QStringView wanted, qsizetype start, qsizetype end, TextSearch search) {
    if (wanted.isEmpty())
        return -1;
    const QStringView range = text.first(std::clamp<qsizetype>(end, 0, text.size()));
    const auto cases = search.matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
    for (qsizetype from = std::max<qsizetype>(start, 0); from < range.size(); ++from) {
        from = range.indexOf(wanted, from, cases);
        if (from < 0)
            return -1;
        if (!search.wholeWord || isWholeWord(text, from, from + wanted.size()))
            return from;
    }
    return -1;
}
