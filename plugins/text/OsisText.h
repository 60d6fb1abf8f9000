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
#include <array>

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
    enum class Kind { Plain, Quotation, Spoken, Separate, Title, Dropped, Added, Book, Count };

    static Kind kindOf(QStringView name, const QXmlStreamAttributes& attributes);
    void startMilestone(Kind kind, QStringView id);
    void endMilestone(QStringView id);
    void beginText(Kind kind);
    void endAddedWord();
    void open(Kind kind);
    Kind close();
    bool isOpen(Kind kind) const { return m_openOf[static_cast<std::size_t>(kind)] > 0; }
    bool isDropping() const;
    bool isRed() const;

    AddedWordRule m_rule;
    MarkedText m_verse;
    QList<Kind> m_open; // the elements that are open; and how many there are of each kind
    std::array<qsizetype, static_cast<std::size_t>(Kind::Count)> m_openOf{};
    QSet<QString> m_spoken;    // the quotations of Christ opened by milestones
    QString m_subscription;    // the subscription opened by a milestone
    qsizetype m_addedAt = -1;  // where an added word stands glued to the word before
    bool m_bookClosed = false; // since the last verse
};
