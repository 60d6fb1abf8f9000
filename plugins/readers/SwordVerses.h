// The verses of a SWORD module in OSIS mark-up.
#pragma once

#include "readers/BookEnds.h"
#include "readers/SwordModule.h"
#include "readers/VerseSource.h"
#include "text/OsisFragments.h"

// What a text needs beyond its mark-up; nothing, for most.
struct TextRules {
    AddedWordRule addedWords = nullptr;
    void (*correct)(const VerseAddress& address, MarkedText& verse) = nullptr;
};

class SwordVerses final : public VerseSource {
public:
    // Error::NotADatabase for a module in another mark-up. `origin` says where the module is from,
    // for the data file.
    SwordVerses(std::unique_ptr<SwordModule> module, const QString& origin, const TextRules& rules);

    std::optional<Verse> next() override;
    double fraction() const override { return m_module->fraction(); }
    QStringList remarks() const override;
    SourceInfo info() const override;

private:
    const Book* currentBook();
    std::optional<Verse> currentVerse();

    std::unique_ptr<SwordModule> m_module;
    QString m_origin;
    TextRules m_rules;
    OsisFragments m_fragments;
    QString m_bookId; // the one that m_book was found by
    const Book* m_book = nullptr;
    BookEnds m_ends;
    QStringList m_booksLeftOut;
    int m_damagedVerses = 0;
    VerseAddress m_firstDamaged;
};
