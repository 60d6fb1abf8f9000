#include "readers/VerseNumber.h"

#include <QString>

#include <algorithm>

namespace {

constexpr QStringView RangeMarks = u"-,\u2010\u2011\u2012\u2013\u2014";

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

std::optional<int> leadingNumber(QStringView& text) {
    const auto* end = std::find_if_not(text.begin(), text.end(), isDigit);
    const QStringView digits = text.first(end - text.begin());
    bool fits = false;
    const int number = digits.toInt(&fits);
    text = text.sliced(digits.size());
    return fits ? std::optional(number) : std::nullopt;
}

// The letter of a part, taken off; null for none.
QChar leadingLetter(QStringView& text) {
    if (text.isEmpty() || !text.front().isLetter())
        return {};
    const QChar letter = text.front().toLower();
    text = text.sliced(1);
    return letter;
}

// What separates the numbers of a range, invisible direction marks included.
bool isBetweenNumbers(QChar character) {
    return RangeMarks.contains(character) || character.isSpace()
           || character.category() == QChar::Other_Format;
}

} // namespace

std::optional<VerseNumber> readVerseNumber(QStringView text) {
    text = text.trimmed();
    const std::optional<int> first = leadingNumber(text);
    if (!first)
        return std::nullopt;
    const QChar letter = leadingLetter(text);
    VerseNumber number{*first, !letter.isNull() && letter != u'a', !letter.isNull(), false};
    while (!text.isEmpty()) {
        const auto* next = std::find_if_not(text.begin(), text.end(), isBetweenNumbers);
        if (next == text.begin())
            return std::nullopt;
        text = text.sliced(next - text.begin());
        if (!leadingNumber(text))
            return std::nullopt;
        leadingLetter(text);
        number.isRange = true;
    }
    return number;
}

std::optional<int> readChapterNumber(QStringView text) {
    text = text.trimmed();
    const std::optional<int> number = leadingNumber(text);
    return text.isEmpty() ? number : std::nullopt;
}
