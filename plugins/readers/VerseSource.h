// The shape of a reader: something that yields the verses of a translation, whatever the format.
#pragma once

#include "text/BookTable.h"

#include <QString>
#include <QStringList>
#include <optional>

struct Verse {
    VerseAddress address;
    QString body;      // as it is stored, the red-letter prefix included; empty only beside a note
    QString note = {}; // of the source's owner; null for none
};

// What a data file says of itself.
struct SourceInfo {
    QString title;
    QString source;
    QString licence;
};

class VerseSource {
public:
    VerseSource() = default;
    virtual ~VerseSource() = default;
    Q_DISABLE_COPY_MOVE(VerseSource)

    // The next verse in the order of the source; nothing behind the last one. Each address as the
    // source numbers it, of one of the 66 books; a note without a verse may have any. Error with
    // what is wrong and where.
    virtual std::optional<Verse> next() = 0;

    // How much of the source has been read, 0 to 1.
    virtual double fraction() const = 0;

    // What the user should know of the reading once it is through, a sentence each: books that
    // were left out, verses that were damaged.
    virtual QStringList remarks() const = 0;

    virtual SourceInfo info() const = 0;
};
