// Flattens OSIS mark-up to the plain text of verses, with the words of Christ marked. It is fed the
// events of an XML reader and handed a verse's text at its end; quotations go on across verses.
//
// Dropped: notes, figures, headings (a psalm's canonical title is none), subscriptions of epistles,
// whatever follows the close of a book. Kept as plain text: added words, divine names and all other
// mark-up.
#pragma once

#include "text/MarkedText.h"

#include <QList>
#include <QSet>
#include <QXmlStreamAttributes>

// Whether a blank is missing between a word and an added word that stands glued to it. A text
// without such a rule is right as it stands.
using AddedWordRule = bool (*)(QStringView word, QStringView added);

class OsisText {
public:
    explicit OsisText(AddedWordRule rule = nullptr)
        : m_rule(rule) {}

    void startElement(QStringView name, const QXmlStreamAttributes& attributes);
    void endElement();
    void characters(QStringView text);

    // The text since the last call.
    MarkedText takeVerse();

    // The number of elements that are open, and whether all of them are quotations, which may end
    // in a later verse.
    qsizetype openElements() const { return m_open.size(); }
    bool onlyQuotationsAreOpen() const;

private:
    enum class Kind { Plain, Quotation, Spoken, Separate, Title, Dropped, Added, Book };

    static Kind kindOf(QStringView name, const QXmlStreamAttributes& attributes);
    void startMilestone(Kind kind, QStringView id);
    void endMilestone(QStringView id);
    void beginText(Kind kind);
    void endAddedWord();
    bool isDropping() const;
    bool isRed() const;

    AddedWordRule m_rule;
    MarkedText m_verse;
    QList<Kind> m_open;        // the elements that are open
    QSet<QString> m_spoken;    // the quotations of Christ opened by milestones
    QString m_subscription;    // the subscription opened by a milestone
    qsizetype m_addedAt = -1;  // where an added word stands glued to the word before
    bool m_bookClosed = false; // since the last verse
};
