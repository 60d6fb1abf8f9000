// A little Bible, to be written in any format.
#pragma once

#include <QList>
#include <QString>

enum class PartKind { Plain, Red, Added, Divine, Note };

struct SamplePart {
    PartKind kind;
    QString text;
};

struct SampleVerse {
    QString book; // OSIS id
    QString chapter;
    QString verse;
    QList<SamplePart> parts;
    QString title = {};    // of a psalm
    QString expected = {}; // the stored body
};

// Verses with all that the formats know: words of Christ, titles of psalms, notes, added words,
// divine names, characters that mark-up needs for itself.
QList<SampleVerse> littleBible();

// A verse of plain words.
SampleVerse
plainVerse(const QString& book, const QString& chapter, const QString& verse, const QString& text);
