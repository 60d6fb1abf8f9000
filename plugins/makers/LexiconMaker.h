// Makes the file of the Greek lexicon.
#pragma once

#include "makers/Maker.h"
#include "readers/SwordEntries.h"
#include "readers/SwordModule.h"

class LexiconMaker final : public Maker {
public:
    // `tagged` is a translation with Strong's numbers: how often it renders a word decides the
    // order of the rows, and with it which entry a look-up finds.
    LexiconMaker(std::unique_ptr<SwordEntries> source, std::unique_ptr<SwordModule> tagged);

    // Row 1 tells of the lexicon: a look-up never finds the first row. Numbers that the dictionary
    // leaves out have no row. Error::NotADatabase for a source without an entry.
    MadeFile make(const Order& order, Progress& progress) override;

private:
    std::unique_ptr<SwordEntries> m_source;
    std::unique_ptr<SwordModule> m_tagged;
};
