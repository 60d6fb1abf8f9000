// The user's notes of a translation file that is made anew. A note whose verse the new text lacks
// is kept in a table of its own, tblKeptNotes(book, chapter, verse, note), and tried again the next
// time.
#pragma once

#include "store/WriteBarrier.h"
#include "text/BookTable.h"

#include <QString>
#include <QStringList>
#include <map>
#include <memory>
#include <set>

class DataFileWriter;
class Recordset;

class CarriedNotes {
public:
    CarriedNotes() = default;

    // The notes of a data file; a real Jet database becomes one first, and its original stays
    // beside it. Error if it cannot be read, since its notes would be lost. From then on nobody can
    // write into the file, until this ends: it has to outlive the putting in place of the new one.
    explicit CarriedNotes(const QString& path);

    // Takes the note of a verse, for the verse's new row; a null text for none. A file with several
    // notes on one verse gives the first, the others stay.
    QString take(const VerseAddress& address);

    // Takes note of what a verse's new row holds.
    void compareBody(const VerseAddress& address, const QString& body);

    // Adds a note that the new text has no verse for.
    void keep(const VerseAddress& address, const QString& note);

    // Writes those that no verse took.
    void keepRest(DataFileWriter& writer) const;

    // What became of the notes, and how much red is lost, a sentence each.
    QStringList remarks() const;

private:
    void read(const QString& path);
    void readNotes(Recordset rows);
    void readRedVerses(Recordset rows);

    std::unique_ptr<WriteBarrier> m_barrier;
    std::multimap<VerseAddress, QString> m_notes;
    std::set<VerseAddress> m_redVerses; // that the new text has not in red
    int m_taken = 0;
};
