#include "richtext/RichText.h"

#include <QHashFunctions>
#include <algorithm>

namespace {

constexpr qsizetype endlessWord = 5000;

bool isLineEnd(QChar character) {
    return character == u'\n' || character == u'\r' || character == QChar::ParagraphSeparator;
}

// A text document keeps these characters for itself: they would become objects or frames.
bool isReserved(QChar character) {
    const char16_t code = character.unicode();
    return code == 0xFDD0 || code == 0xFDD1 || code == QChar::ObjectReplacementCharacter;
}

// What stands in the text for a character that means something else there.
QChar within(QChar character) {
    if (isLineEnd(character))
        return QChar::LineSeparator;
    return isReserved(character) ? QChar(QChar::ReplacementCharacter) : character;
}

} // namespace

size_t qHash(const CharacterStyle& style, size_t seed) noexcept {
    const int switches = int(style.bold) | int(style.italic) << 1 | int(style.underline) << 2
                         | int(style.strikeOut) << 3 | int(style.color.has_value()) << 4
                         | int(style.background.has_value()) << 5;
    return qHashMulti(
        seed, style.font, style.halfPoints, switches, style.color.value_or(0),
        style.background.value_or(0));
}

void RichText::cover(qsizetype length, const CharacterStyle& style) {
    if (!runs.isEmpty() && runs.constLast().style == style)
        runs.last().length += length;
    else
        runs.append({length, style});
}

void RichText::cut(qsizetype length) {
    text.chop(length);
    while (length > 0) {
        Run& last = runs.last();
        const qsizetype taken = std::min(length, last.length);
        last.length -= taken;
        length -= taken;
        if (last.length == 0)
            runs.removeLast();
    }
}

void RichText::append(QStringView piece, const CharacterStyle& style) {
    if (piece.isEmpty())
        return;
    const qsizetype start = text.size();
    text.append(piece);
    std::transform(text.cbegin() + start, text.cend(), text.begin() + start, within);
    cover(piece.size(), style);
}

void RichText::endParagraph(const ParagraphStyle& style, const CharacterStyle& character) {
    paragraphs.append({text.size() - m_paragraphStart, style});
    text.append(u'\n');
    cover(1, character);
    m_paragraphStart = text.size();
}

void RichText::finish(const ParagraphStyle& style) {
    paragraphs.append({text.size() - m_paragraphStart, style});
}

void RichText::finishAtMark(const ParagraphStyle& style) {
    const QStringView last = QStringView(text).sliced(m_paragraphStart);
    const bool onlyBlanks = std::ranges::all_of(last, [](QChar c) { return c == u' '; });
    if (paragraphs.isEmpty() || !onlyBlanks)
        return finish(style);
    cut(last.size() + 1);
}

RichText plainRichText(const QString& text, const ParagraphStyle& style) {
    RichText rich;
    rich.text.reserve(text.size());
    const QStringView all(text);
    qsizetype start = 0;
    for (qsizetype i = 0; i < all.size(); ++i) {
        if (!isLineEnd(all[i]))
            continue;
        rich.append(all.sliced(start, i - start), {});
        rich.endParagraph(style, {});
        if (all[i] == u'\r' && i + 1 < all.size() && all[i + 1] == u'\n')
            ++i;
        start = i + 1;
    }
    rich.append(all.sliced(start), {});
    rich.finish(style);
    return rich;
}

bool hasEndlessWord(const QString& text) {
    qsizetype length = 0;
    return std::ranges::any_of(text, [&](QChar character) {
        length = character.isSpace() ? 0 : length + 1;
        return length > endlessWord;
    });
}
