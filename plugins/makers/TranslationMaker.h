// Makes the data file of a translation from whatever source yields its verses.
#pragma once

#include "makers/Maker.h"
#include "readers/NameList.h"
#include "readers/VerseSource.h"

#include <memory>
#include <vector>

class CarriedNotes;
class DataFileWriter;

class TranslationMaker final : public Maker {
public:
    explicit TranslationMaker(std::unique_ptr<VerseSource> source);

    // Rows in canonical order, counted from 1. Notes of a file that is replaced are carried over;
    // one of the source on the same verse follows behind a blank line.
    // Error::NotADatabase for a source without a verse, or with more than a Bible can have.
    MadeFile make(const Order& order, Progress& progress) override;

private:
    void readVerses(Progress& progress);
    void sortVerses();
    [[noreturn]] void failWithoutVerse() const;
    void writeVerses(DataFileWriter& writer, CarriedNotes& notes, Progress& progress);
    QString noteFor(const Verse& verse, CarriedNotes& notes);
    QStringList verseRemarks() const;
    QStringList sourceNoteRemarks() const;

    std::unique_ptr<VerseSource> m_source;
    std::vector<Verse> m_verses;
    qsizetype m_rows = 0;
    NameList m_repeated; // verses that the source holds more than once
    int m_notesStored = 0;
    int m_notesJoined = 0;
};
