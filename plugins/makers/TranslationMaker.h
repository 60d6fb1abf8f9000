// Makes the data file of a translation from whatever source yields its verses.
#pragma once

#include "makers/Maker.h"
#include "readers/VerseSource.h"

#include <memory>
#include <vector>

class CarriedNotes;
class DataFileWriter;

class TranslationMaker final : public Maker {
public:
    explicit TranslationMaker(std::unique_ptr<VerseSource> source);

    // Rows in canonical order, counted from 1. Notes of a file that is replaced are carried over.
    // Error::NotADatabase for a source without a verse.
    MadeFile make(const Order& order, Progress& progress) override;

private:
    void readVerses(Progress& progress);
    void sortVerses();
    void writeVerses(DataFileWriter& writer, CarriedNotes& notes, Progress& progress) const;
    void writeInfo(DataFileWriter& writer) const;
    QStringList chapterRemarks() const;

    std::unique_ptr<VerseSource> m_source;
    std::vector<Verse> m_verses;
    QStringList m_repeated; // verses that the source holds more than once
};
