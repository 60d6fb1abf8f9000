// Makes the file of the concordance from a topical dictionary.
#pragma once

#include "makers/Maker.h"
#include "readers/SwordEntries.h"

class TopicalMaker final : public Maker {
public:
    explicit TopicalMaker(std::unique_ptr<SwordEntries> source)
        : m_source(std::move(source)) {}

    // One row a headword, in alphabetical order, with a row "About this work" among them.
    // Error::NotADatabase for a source without an article.
    MadeFile make(const Order& order, Progress& progress) override;

private:
    std::unique_ptr<SwordEntries> m_source;
};
