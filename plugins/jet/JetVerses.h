// The verses of a real Jet database with a table tblMain, for importing it as a translation.
#pragma once

#include "readers/VerseSource.h"

#include <memory>

// Whether the file's content says that it is a Jet or ACE database; false for a file that cannot be
// read.
bool isJetFile(const QString& path);

// Bodies come as they are stored, with the program's own red-letter prefix, and notes as they are
// stored too. Verses with an address outside of the 66 books are left out and named; so are those
// with neither body nor note. Memory does not grow with the file.
class JetVerses final : public VerseSource {
public:
    // Error::NotADatabase for a file that is no Jet database, encrypted, damaged, or has no tblMain
    // with the fields book, chapter, verse and body.
    explicit JetVerses(const QString& path);
    ~JetVerses() override;

    std::optional<Verse> next() override;
    double fraction() const override;
    QStringList remarks() const override;
    SourceInfo info() const override;

private:
    class Table;
    std::unique_ptr<Table> m_table;
};
