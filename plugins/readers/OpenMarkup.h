// The mark-up that is open in a text, and what becomes of words under it.
#pragma once

#include "readers/VerseGathering.h"

enum class MarkupKind {
    Plain,    // its words are words like all others
    Separate, // a line or a block of its own
    Note,     // dropped out of the middle of a text
    Heading,  // dropped from between two blocks
    Title,    // of a psalm
    Red,      // words of Christ
};

class OpenMarkup {
public:
    explicit OpenMarkup(VerseGathering& verses)
        : m_verses(verses) {}

    void open(MarkupKind kind);
    void close(); // the innermost one; nothing where none is open
    void characters(QStringView text);

    qsizetype depth() const { return m_open.size(); }

private:
    VerseGathering& m_verses;
    QList<MarkupKind> m_open;
    int m_dropping = 0; // notes and headings among them
    int m_red = 0;
};
