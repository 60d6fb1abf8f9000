// Makes the file of the words: the words of a translation, explained by a dictionary of English.
#pragma once

#include "makers/Maker.h"
#include "readers/VerseSource.h"
#include "readers/WordNet.h"

class Vocabulary;

class WordsMaker final : public Maker {
public:
    // `text` is the translation; `additions` is a table of the project's own: word, part of speech,
    // meaning (DataLines.h).
    WordsMaker(
        std::unique_ptr<WordNet> dictionary, std::unique_ptr<VerseSource> text, QString additions);

    // One row a word, in alphabetical order, inflected forms included; the additions come first.
    // A row "About this dictionary" holds the dictionary's notice.
    MadeFile make(const Order& order, Progress& progress) override;

private:
    Vocabulary readText(Progress& progress);

    std::unique_ptr<WordNet> m_dictionary;
    std::unique_ptr<VerseSource> m_text;
    QString m_additions;
};
