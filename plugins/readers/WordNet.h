// The dictionary WordNet, as its package keeps it: an index, a file of data and a list of irregular
// forms for each part of speech.
#pragma once

#include "text/WordForms.h"

#include <QFile>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <array>
#include <memory>

struct WordSense {
    QString word; // as the dictionary writes it: names begin with a capital
    bool isPerson = false;
    QString meaning; // with examples
};

class WordNet {
public:
    // Error::FileNotFound with what to install where `folder` lacks one of the files.
    explicit WordNet(const QString& folder);
    ~WordNet();
    Q_DISABLE_COPY_MOVE(WordNet)

    // The words that an irregular form belongs to.
    QList<QByteArray> irregularBases(PartOfSpeech part, const QByteArray& form) const;

    // Looks these words up, so that the two questions below can be answered for them.
    void find(const QSet<QByteArray>& words);

    bool holds(PartOfSpeech part, const QByteArray& word) const;

    // The senses of a word, the commonest first. Error::NotADatabase for a damaged dictionary.
    QList<WordSense> senses(PartOfSpeech part, const QByteArray& word);

    // The notice that goes with every copy.
    QString licence();

private:
    class Files;
    std::array<std::unique_ptr<Files>, 4> m_files; // by part of speech
};
