// The verses of a folder with a file for each book, one file after the other.
#pragma once

#include "readers/VerseSource.h"

#include <memory>

class FolderReader final : public VerseSource {
public:
    // Error::NotADatabase for a folder without a text in USFM or XML.
    explicit FolderReader(const QString& folder);

    // An error in one of the files is one of the whole text.
    std::optional<Verse> next() override;
    double fraction() const override;
    QStringList remarks() const override;
    SourceInfo info() const override;

private:
    QString m_folder;
    QStringList m_files; // to be read, by name
    qsizetype m_opened = 0;
    std::unique_ptr<VerseSource> m_file;
    SourceInfo m_first; // what the first file says of itself
    QStringList m_remarks;
};
