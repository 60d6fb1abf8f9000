// The user's notes of a translation file that is made anew. A note whose verse the new text lacks
// is kept in a table of its own, tblKeptNotes(book, chapter, verse, note), and tried again the next
// time.
#pragma once

#include "text/BookTable.h"

#include <QString>
#include <QStringList>
#include <map>

class DataFileWriter;

class CarriedNotes {
public:
    CarriedNotes() = default;

    // The notes of a data file; a real Jet database becomes one first, and its original stays
    // beside it. Error if it cannot be read, since its notes would be lost.
    explicit CarriedNotes(const QString& path);

    // Takes the note of a verse, for the verse's new row; a null text for none. A file with several
    // notes on one verse gives the first, the others stay.
    QString take(const VerseAddress& address);

    // Adds a note that the new text has no verse for.
    void keep(const VerseAddress& address, const QString& note);

    // Writes those that no verse took.
    void keepRest(DataFileWriter& writer) const;

    // What became of the notes, a sentence each.
    QStringList remarks() const;

private:
    void read(const QString& path);

    std::multimap<VerseAddress, QString> m_notes;
    int m_taken = 0;
};
