// The verses of a text with one verse a line: book, chapter, verse and text between delimiters, or
// "Gen 1:1 text". Lines that begin with "#" are comments.
#pragma once

#include "readers/DelimitedLayout.h"
#include "readers/TextLines.h"
#include "readers/VerseGathering.h"

class DelimitedReader final : public VerseSource {
public:
    // Error::NotADatabase for a file whose first line does not tell its layout.
    explicit DelimitedReader(const QString& path);

    // Error::NotADatabase, with file and line, for a line that is no verse.
    std::optional<Verse> next() override;
    double fraction() const override { return m_lines.fraction(); }
    QStringList remarks() const override;
    SourceInfo info() const override;

private:
    std::optional<QString> nextLine();
    void findLayout();
    void readLine(QString line);
    QString joined(QString line, DelimitedRow& row);
    bool isVerse(const QString& line) const;
    void startBook(const QString& name);
    void readText(const QString& text);
    [[noreturn]] void fail(const QString& what) const;

    TextLines m_lines;
    VerseGathering m_verses;
    DelimitedLayout m_layout;
    std::optional<QString> m_firstLine; // read already, to find the layout
    std::optional<QString> m_book;      // as the file names it
    QString m_chapter;
    bool m_isThrough = false;
};
