#include "text/Vocabulary.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool hasPlainLetters(QStringView word) {
    return std::ranges::all_of(word, [](QChar letter) { return letter.unicode() < 128; });
}

bool beginsSentence(QStringView text, qsizetype at) {
    static const QString Stops = u".?!:"_s;
    const QStringView before = text.first(at).trimmed();
    return std::ranges::none_of(before, [](QChar each) { return each.isLetter(); })
           || Stops.contains(before.back());
}

} // namespace

void Vocabulary::add(QStringView text) {
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype start = at;
        while (at < text.size() && text[at].isLetter())
            ++at;
        if (at == start) {
            ++at;
            continue;
        }
        // The "s" of a genitive is no word.
        if (start > 1 && text[start - 1] == u'\'' && text[start - 2].isLetter())
            continue;
        const QStringView word = text.sliced(start, at - start);
        if (!hasPlainLetters(word))
            continue;
        Word& seen = m_words[word.toString().toLower().toLatin1()];
        if (word[0].isLower())
            seen.isLower = true;
        else if (!beginsSentence(text, start))
            seen.isCapital = true;
    }
}
