// Cuts a text in RTF into its tokens, and fails on none.
#pragma once

#include <QStringView>

struct RtfToken {
    enum Kind {
        End,        // of the text
        OpenGroup,  // {
        CloseGroup, // }
        Word,       // \word, \word12: `text` is the word, at most 32 letters of it
        Symbol,     // \* and the like: `text` is the one character
        HexByte,    // \'hh: `number` is the byte, or -1 where no digit follows
        Text,       // characters that stand for themselves
    };

    Kind kind = End;
    QStringView text;
    int number = 0;         // a number too large for it stops at its limit
    bool hasNumber = false; // of a Word
};

class RtfTokenizer {
public:
    explicit RtfTokenizer(QStringView text)
        : m_text(text) {}

    RtfToken next();

    // Passes over raw data, at most to the end of the text.
    void skip(qsizetype length);

private:
    bool atEnd() const { return m_position >= m_text.size(); }
    RtfToken readText();
    RtfToken readControl();
    RtfToken readWord();
    RtfToken readHexByte();
    bool readNumber(int& number);

    QStringView m_text;
    qsizetype m_position = 0;
};
