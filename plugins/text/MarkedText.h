// The text of a verse while it is read, each character with its colour. What is appended is made
// fit for the page on the way, so that places found here hold in the finished text.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

// A run of red characters: its place in the text, in UTF-16 units.
struct RedRun {
    qsizetype start;
    qsizetype length;

    qsizetype end() const { return start + length; }
    bool operator==(const RedRun&) const = default;
};

class MarkedText {
public:
    // Blanks and line ends collapse to one blank and vanish at both ends; braces become brackets
    // and a backslash a slash, since the page is hand-written mark-up; a typographic apostrophe
    // becomes the one that people type; pilcrows and invisible characters are dropped.
    void append(QStringView text, bool red);

    // A blank before what follows.
    void separate();

    // Something was taken out here: a blank before what follows, if it would run together with
    // what stands before.
    void markJoint();

    // Puts in a blank; takes characters out.
    void insertBlank(qsizetype position);
    void remove(qsizetype position, qsizetype length);

    // Whether the next letter would lengthen the last word.
    bool endsInWord() const;

    const QString& text() const { return m_text; }

    // The red runs in their order. A blank between two red characters is red.
    QList<RedRun> redRuns() const;

private:
    void appendVisible(QChar character, bool red);

    QString m_text;
    QByteArray m_red; // one for each character, 1 for red
    bool m_blankDue = false;
    bool m_joint = false;
};
