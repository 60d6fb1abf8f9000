#include "text/WordForms.h"

#include <algorithm>
#include <array>
#include <span>

namespace {

struct Ending {
    QByteArrayView ending;
    QByteArrayView replacement;
};

constexpr std::array NounEndings{
    Ending{"s", ""},      Ending{"ses", "s"},   Ending{"xes", "x"},   Ending{"zes", "z"},
    Ending{"ches", "ch"}, Ending{"shes", "sh"}, Ending{"men", "man"}, Ending{"ies", "y"},
};
constexpr std::array VerbEndings{
    Ending{"s", ""},   Ending{"ies", "y"}, Ending{"es", "e"},  Ending{"es", ""},
    Ending{"ed", "e"}, Ending{"ed", ""},   Ending{"ing", "e"}, Ending{"ing", ""},
};
constexpr std::array AdjectiveEndings{
    Ending{"er", ""},
    Ending{"est", ""},
    Ending{"er", "e"},
    Ending{"est", "e"},
};
constexpr std::array ArchaicEndings{
    Ending{"eth", ""},  Ending{"eth", "e"},  Ending{"ieth", "y"},
    Ending{"est", ""},  Ending{"est", "e"},  Ending{"iest", "y"},
    Ending{"edst", ""}, Ending{"edst", "e"}, Ending{"iedst", "y"},
};

constexpr qsizetype ShortestStem = 2;

bool isVowel(char letter) {
    return QByteArrayView("aeiou").contains(letter);
}

// A stem such as "hat" doubles its last letter: "hated" is none of its forms.
bool doublesBeforeVowel(QByteArrayView stem) {
    static constexpr QByteArrayView NeverDoubled = "wxy";
    return stem.size() >= 3 && std::ranges::count_if(stem, isVowel) == 1
           && isVowel(stem[stem.size() - 2]) && !NeverDoubled.contains(stem.back());
}

QList<QByteArray> basesBy(std::span<const Ending> endings, const QByteArray& form) {
    QList<QByteArray> bases;
    for (const auto& [ending, replacement] : endings) {
        const qsizetype length = form.size() - ending.size();
        if (!form.endsWith(ending) || length + replacement.size() < ShortestStem)
            continue;
        const QByteArray stem = form.first(length);
        if (!replacement.isEmpty() || !isVowel(ending[0]) || !doublesBeforeVowel(stem))
            bases.append(stem + replacement.toByteArray());
    }
    return bases;
}

// "sitt" of "sitteth" is "sit".
bool endsInDoubledConsonant(const QByteArray& stem) {
    static constexpr QByteArrayView Doubled = "bdgklmnprt";
    return stem.size() > ShortestStem && stem.back() == stem[stem.size() - 2]
           && Doubled.contains(stem.back());
}

} // namespace

QList<QByteArray> modernBases(PartOfSpeech part, const QByteArray& form) {
    switch (part) {
    case PartOfSpeech::Noun:
        return basesBy(NounEndings, form);
    case PartOfSpeech::Verb:
        return basesBy(VerbEndings, form);
    case PartOfSpeech::Adjective:
        return basesBy(AdjectiveEndings, form);
    case PartOfSpeech::Adverb:
        break;
    }
    return {};
}

QList<QByteArray> archaicBases(const QByteArray& form) {
    QList<QByteArray> bases = basesBy(ArchaicEndings, form);
    const QList<QByteArray> stems = bases;
    for (const QByteArray& stem : stems) {
        if (endsInDoubledConsonant(stem))
            bases.append(stem.chopped(1));
    }
    return bases;
}
