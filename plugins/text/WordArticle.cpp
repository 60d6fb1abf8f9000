#include "text/WordArticle.h"

#include "text/PlainLines.h"

#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array Parts{
    PartOfSpeech::Noun, PartOfSpeech::Verb, PartOfSpeech::Adjective, PartOfSpeech::Adverb};
constexpr std::array PartNames{"noun"_L1, "verb"_L1, "adjective"_L1, "adverb"_L1};

// Words of grammar. As nouns and by their endings the dictionary would make chemical elements,
// letters and units of them.
const QSet<QByteArray>& grammarWords() {
    static const QByteArray all =
        "a an the and or nor but if as at by for from in into of off on out over to unto up upon "
        "with i me my mine he him his she her hers it its we us our ours thou thee thy thine ye "
        "you your yours they them their theirs this that these those who whom whose which what "
        "is am are art was were wast be been being do does did has have had having o oh ah so no "
        "not than then thus there here where when while will shall may can ay ha let";
    static const QList<QByteArray> list = all.split(' ');
    static const QSet<QByteArray> words(list.begin(), list.end());
    return words;
}

QString nameOf(PartOfSpeech part) {
    return PartNames[size_t(part)];
}

bool isCapital(const WordSense& sense) {
    return sense.word[0].isUpper();
}

// "IT", "Pb": no word of the Bible.
bool isAbbreviation(const WordSense& sense) {
    return isCapital(sense)
           && (sense.word.size() <= 2 || (sense.word.size() <= 4 && sense.word[1].isUpper()));
}

// A bearer of a biblical name whom the Bible does not know: a person of later times, a town of the
// new world.
bool isOfLaterTimes(const WordSense& sense) {
    static const QRegularExpression biblical(
        u"\\b(?:Testament|Bibl|Hebrew|Israel|Jew|Juda|Judea|Apostle|apostle|prophet|Gospel|Christ|"
        u"Jesus|Moses|Noah|Adam|God|Roman [Ee]mperor|emperor of Rome|Persia|Babylon|Egypt|Magi|"
        u"archangel|disciple|evangelist|Genesis|worship)"_s);
    static const QRegularExpression newWorld(
        u"\\b(?:United States|North America|Canada|Ohio|Pennsylvania|Oregon|Massachusetts|"
        u"Tennessee|Alabama|Mississippi|Virginia|Carolina|Texas|Illinois|Maryland|Connecticut|"
        u"New (?:York|Hampshire|England|Zealand)|England|Britain|university)\\b"_s);
    if (!isCapital(sense))
        return false;
    if (sense.isPerson && !sense.meaning.contains(biblical))
        return true;
    return sense.meaning.contains(newWorld);
}

// A few meanings hold words of several parts as the index writes them, "comic_strip".
QString tidyMeaning(QString meaning) {
    return cleanLine(meaning.replace(u'_', u' '));
}

QString numbered(const QStringList& meanings) {
    if (meanings.size() == 1)
        return meanings.first();
    QStringList lines;
    for (const QString& meaning : meanings)
        lines.append(u"%1. %2"_s.arg(lines.size() + 1).arg(meaning));
    return lines.join(u"\r\n"_s);
}

} // namespace

QSet<QByteArray> WordArticles::candidates(const WordNet& dictionary, const QByteArray& word) {
    QSet<QByteArray> words{word};
    const auto add = [&words](const QList<QByteArray>& bases) {
        words.unite(QSet<QByteArray>(bases.begin(), bases.end()));
    };
    for (const PartOfSpeech part : Parts) {
        add(dictionary.irregularBases(part, word));
        add(modernBases(part, word));
    }
    add(archaicBases(word));
    return words;
}

bool WordArticles::holdsAnywhere(const QByteArray& word) const {
    return std::ranges::any_of(
        Parts, [&](PartOfSpeech part) { return m_dictionary.holds(part, word); });
}

QList<QByteArray>
WordArticles::basesOf(PartOfSpeech part, const QByteArray& word, bool isName) const {
    QList<QByteArray> bases;
    const auto add = [&](const QList<QByteArray>& words) {
        for (const QByteArray& each : words) {
            if (m_dictionary.holds(part, each) && !bases.contains(each))
                bases.append(each);
        }
    };
    const bool isGrammar = grammarWords().contains(word);
    if (isGrammar && part == PartOfSpeech::Noun)
        return {};
    add({word});
    const bool isItsOwn = !bases.isEmpty();
    add(m_dictionary.irregularBases(part, word));
    if (isItsOwn || isGrammar || (isName && part != PartOfSpeech::Noun))
        return bases;
    add(modernBases(part, word));
    if (part == PartOfSpeech::Verb && !holdsAnywhere(word))
        add(archaicBases(word));
    return bases;
}

// The senses in the spelling of the Bible: "god" and "God" are both there, "Mark" of the United
// States is not.
QList<WordSense>
WordArticles::sensesOf(PartOfSpeech part, const QByteArray& base, Vocabulary::Word seen) {
    QList<WordSense> senses = m_dictionary.senses(part, base);
    senses.removeIf(
        [](const WordSense& each) { return isAbbreviation(each) || isOfLaterTimes(each); });
    const bool isEverPlain =
        std::ranges::any_of(senses, [](const WordSense& each) { return !isCapital(each); });
    senses.removeIf([&](const WordSense& each) {
        return isCapital(each) ? !seen.isCapital && isEverPlain : !seen.isPlain();
    });
    return senses;
}

QList<WordArticles::Group> WordArticles::groupsOf(const QByteArray& word, Vocabulary::Word seen) {
    QList<Group> groups;
    for (const PartOfSpeech part : Parts) {
        for (const QByteArray& base : basesOf(part, word, !seen.isPlain())) {
            Group group{part, base, {}, {}};
            for (const WordSense& sense : sensesOf(part, base, seen)) {
                group.meanings.append(tidyMeaning(sense.meaning));
                if (group.spelling.isEmpty())
                    group.spelling = sense.word;
            }
            if (!group.meanings.isEmpty())
                groups.append(group);
        }
    }
    return groups;
}

WordArticle WordArticles::article(const QByteArray& word, Vocabulary::Word seen) {
    const QList<Group> groups = groupsOf(word, seen);
    WordArticle article;
    QStringList blocks;
    for (const Group& group : groups) {
        const QString part = nameOf(group.part);
        if (!article.parts.contains(part))
            article.parts.append(part);
        QString heading;
        if (group.base != word)
            heading = u"%1, a form of \"%2\":\r\n"_s.arg(part, group.spelling);
        else if (groups.size() > 1)
            heading = part + u":\r\n"_s;
        blocks.append(heading + numbered(group.meanings));
    }
    article.text = blocks.join(u"\r\n\r\n"_s);
    return article;
}
