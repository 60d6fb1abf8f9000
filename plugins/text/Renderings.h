// How a translation renders the Greek words of the New Testament: gathered from the Strong's
// numbers in its mark-up.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

class Renderings {
public:
    // Counts the tagged words of a verse.
    void add(const QString& markup);

    // How often the word of this number is rendered by words of `usage`, the English words that a
    // lexicon gives for it.
    int countOf(int number, const QString& usage) const;

private:
    QHash<int, QHash<QString, int>> m_counts; // of each number's renderings, in lower case
};

// The words in a text, in lower case: runs of letters, an apostrophe within.
QStringList wordsIn(QStringView text);
