// The words of a text.
#pragma once

#include <QByteArray>
#include <QString>
#include <map>

class Vocabulary {
public:
    void add(QStringView text);

    struct Word {
        bool isLower = false;   // seen without a capital
        bool isCapital = false; // seen with a capital where no sentence begins

        // Whether it is more than a name.
        bool isPlain() const { return isLower || !isCapital; }
    };

    // In lower case and in alphabetical order; only words of plain letters. "LORD's" is "lord".
    const std::map<QByteArray, Word>& words() const { return m_words; }

private:
    std::map<QByteArray, Word> m_words;
};
