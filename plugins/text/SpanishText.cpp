#include "text/SpanishText.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int Psalms = 19;
constexpr int Romans = 45;
constexpr int Hebrews = 58;

// Of Psalm 119; each stands in front of eight verses.
constexpr std::array LetterNames{
    u"ALEPH", u"BETH",   u"GIMEL", u"DALETH", u"HE",  u"VAU", u"ZAIN",   u"CHETH",
    u"TETH",  u"JOD",    u"CAPH",  u"LAMED",  u"MEM", u"NUN", u"SAMECH", u"AIN",
    u"PE",    u"TZADDI", u"COPH",  u"RESH",   u"SIN", u"TAU",
};
constexpr int VersesOfALetter = 8;

constexpr std::array Pronouns{u"me",  u"nos", u"te",  u"os", u"le",
                              u"les", u"la",  u"las", u"lo", u"los"};

// The words in front of such a pronoun that are no verb.
constexpr std::array BearNoPronoun{u"como",  u"cuánto", u"dios", u"ellos", u"gentes", u"jehová",
                                   u"josué", u"no",     u"os",   u"que",   u"y"};

template <class Words>
bool holds(const Words& words, QStringView word) {
    return std::any_of(words.begin(), words.end(), [word](const char16_t* each) {
        return word.compare(QStringView(each), Qt::CaseInsensitive) == 0;
    });
}

void removeLetterName(int verse, MarkedText& text) {
    const std::size_t letter = (verse - 1) / VersesOfALetter;
    if ((verse - 1) % VersesOfALetter != 0 || letter >= LetterNames.size())
        return;
    const QStringView name(LetterNames.at(letter));
    const QString& words = text.text();
    if (!words.startsWith(name))
        return;
    qsizetype length = name.size();
    while (length < words.size() && (words[length] == u'.' || words[length] == u' '))
        ++length;
    text.remove(0, length);
}

// A subscription follows the last "Amén." and says from where the letter was written or sent.
void removeSubscription(MarkedText& text) {
    const QString& words = text.text();
    const qsizetype amen = words.lastIndexOf(u"Amén. "_s);
    if (amen < 0)
        return;
    const qsizetype end = amen + QStringView(u"Amén.").size();
    const QStringView rest = QStringView(words).sliced(end);
    if (rest.contains(u"escrita"_s, Qt::CaseInsensitive)
        || rest.contains(u"enviada"_s, Qt::CaseInsensitive))
        text.remove(end, words.size() - end);
}

} // namespace

void correctSpanishText(const VerseAddress& address, MarkedText& verse) {
    if (address.book == Psalms && address.chapter == 119)
        removeLetterName(address.verse, verse);
    else if (address.book >= Romans && address.book <= Hebrews)
        removeSubscription(verse);
}

bool lacksSpanishBlank(QStringView word, QStringView added) {
    return !holds(Pronouns, added) || holds(BearNoPronoun, word);
}
