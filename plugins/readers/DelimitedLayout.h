// How the lines of a delimited text are made up. The first line tells: by the names of its columns,
// or by where its numbers stand.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

struct DelimitedRow {
    QString book;
    QString chapter;
    QString verse;
    QString text;
    bool isUnfinished = false; // the text begins with a quotation mark that this line does not end
};

class DelimitedLayout {
public:
    // From a line; nothing for one that tells nothing.
    static std::optional<DelimitedLayout> of(const QString& line);

    // Whether that line held names and no verse.
    bool isHeader() const { return m_isHeader; }

    // The parts of a line; nothing for one that lacks some. They are as the file has them.
    std::optional<DelimitedRow> row(const QString& line) const;

    // What a line should hold, for an error.
    QString expectation() const;

private:
    static std::optional<DelimitedLayout> ofNames(const QString& line, QChar delimiter);
    static std::optional<DelimitedLayout> ofNumbers(const QString& line, QChar delimiter);
    static std::optional<DelimitedLayout> ofReference(const QString& line, QChar delimiter);
    QStringList fields(QStringView line, qsizetype most) const;

    QChar m_delimiter; // null: a blank between "Gen 1:1" and the text
    bool m_isHeader = false;
    bool m_isQuoted = false; // fields may stand in quotation marks
    int m_reference = -1;    // the columns; of a field "Gen 1:1", or of its three parts
    int m_book = -1;
    int m_chapter = -1;
    int m_verse = -1;
    int m_text = -1;
    bool m_isTextLast = true; // so that it may hold the delimiter
};
