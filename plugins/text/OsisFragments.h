// Reads the verses of a module, each of which is a piece of an OSIS document, one after the other.
#pragma once

#include "text/OsisText.h"

class OsisFragments {
public:
    explicit OsisFragments(AddedWordRule rule = nullptr)
        : m_rule(rule)
        , m_text(rule) {}

    // The text of the next verse. Mark-up that is not well formed costs the verse its red letters,
    // never its words: its tags are stripped, and `wasDamaged` holds until the next verse.
    MarkedText flatten(const QString& fragment);
    bool wasDamaged() const { return m_wasDamaged; }

private:
    bool feed(const QString& fragment);

    AddedWordRule m_rule;
    OsisText m_text;
    bool m_wasDamaged = false;
};
