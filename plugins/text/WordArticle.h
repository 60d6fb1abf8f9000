// What a dictionary of English says of a word of the Bible, over all parts of speech and over the
// words that it may be a form of.
#pragma once

#include "readers/WordNet.h"
#include "text/Vocabulary.h"

#include <QString>
#include <QStringList>

struct WordArticle {
    QStringList parts; // of speech
    QString text;      // of several lines; empty where the dictionary lacks the word
};

class WordArticles {
public:
    explicit WordArticles(WordNet& dictionary)
        : m_dictionary(dictionary) {}

    // The words that `word` may be a form of, itself included: what the dictionary has to find
    // before it is asked for the article.
    static QSet<QByteArray> candidates(const WordNet& dictionary, const QByteArray& word);

    // `seen`: how the Bible writes the word, which tells names from other words.
    WordArticle article(const QByteArray& word, Vocabulary::Word seen);

private:
    struct Group { // the senses of one word as one part of speech
        PartOfSpeech part;
        QByteArray base;
        QString spelling;
        QStringList meanings;
    };

    QList<Group> groupsOf(const QByteArray& word, Vocabulary::Word seen);
    QList<QByteArray> basesOf(PartOfSpeech part, const QByteArray& word, bool isName) const;
    QList<WordSense> sensesOf(PartOfSpeech part, const QByteArray& base, Vocabulary::Word seen);
    bool holdsAnywhere(const QByteArray& word) const;

    WordNet& m_dictionary;
};
