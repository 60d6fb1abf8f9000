#include "readers/DelimitedLayout.h"

#include "readers/VerseNumber.h"
#include "text/Apocrypha.h"
#include "text/BookTable.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<QChar, 4> Delimiters{u'\t', u'|', u';', u','};

constexpr std::array BookNames{"book"_L1,   "b"_L1,          "bk"_L1,      "bookname"_L1,
                               "bookid"_L1, "booknumber"_L1, "booknum"_L1, "bookno"_L1};
constexpr std::array ChapterNames{"chapter"_L1, "c"_L1, "ch"_L1, "chap"_L1, "chapternumber"_L1};
constexpr std::array VerseNames{"verse"_L1, "v"_L1, "vs"_L1, "versenumber"_L1, "versenum"_L1};
constexpr std::array TextNames{"text"_L1,      "t"_L1,     "body"_L1,
                               "scripture"_L1, "words"_L1, "versetext"_L1};
constexpr std::array ReferenceNames{"reference"_L1, "ref"_L1, "osisid"_L1, "passage"_L1};

// The place of the first column with one of these names, told without case, blanks and "_"; -1 for
// none.
template <class Names>
int columnNamed(const QStringList& columns, const Names& names) {
    for (qsizetype column = 0; column < columns.size(); ++column) {
        QString name = columns[column].trimmed().toLower();
        name.remove(u' ').remove(u'_');
        if (std::find(names.begin(), names.end(), name) != names.end())
            return static_cast<int>(column);
    }
    return -1;
}

// "Gen 1:1", "1 Samuel 3:4-5", "Gen.1.1" and, with a blank behind it, what follows.
QRegularExpressionMatch matchReference(const QString& text, bool isWhole) {
    static const QString place =
        u"^\\s*([1-4]?\\s?[^\\d\\s:.|;,][^\\d:.|;,\\t]{0,39}?)[.\\s]\\s*(\\d+)\\s*[:.]\\s*"
        u"(\\d+[a-z]?(?:-\\d+[a-z]?)?)"_s;
    static const QRegularExpression whole(place + u"\\s*$"_s);
    static const QRegularExpression leading(place + u"\\s+(\\S.*)$"_s);
    return (isWhole ? whole : leading).match(text);
}

DelimitedRow rowOf(const QRegularExpressionMatch& reference, const QString& text) {
    return {
        reference.captured(1).trimmed(), reference.captured(2), reference.captured(3), text, false};
}

// The end of a text in quotation marks: behind its closing mark; -1 where none closes it.
qsizetype endOfQuoted(QStringView text) {
    for (qsizetype at = 1; at < text.size(); ++at) {
        if (text[at] != u'"')
            continue;
        if (at + 1 == text.size() || text[at + 1] != u'"')
            return at + 1;
        ++at;
    }
    return -1;
}

QString withoutQuotes(QStringView quoted) {
    return quoted.sliced(1, quoted.size() - 2).toString().replace(u"\"\""_s, u"\""_s);
}

} // namespace

std::optional<DelimitedLayout> DelimitedLayout::of(const QString& line) {
    for (const auto make : {ofNames, ofNumbers, ofReference}) {
        for (const QChar delimiter : Delimiters) {
            if (auto layout = make(line, delimiter))
                return layout;
        }
    }
    if (!matchReference(line, false).hasMatch())
        return std::nullopt;
    return DelimitedLayout();
}

std::optional<DelimitedLayout> DelimitedLayout::ofNames(const QString& line, QChar delimiter) {
    DelimitedLayout layout;
    layout.m_delimiter = delimiter;
    layout.m_isHeader = true;
    layout.m_isQuoted = delimiter == u',' || delimiter == u';' || line.startsWith(u'"');
    const QStringList columns = layout.fields(line, -1);
    layout.m_reference = columnNamed(columns, ReferenceNames);
    layout.m_book = columnNamed(columns, BookNames);
    layout.m_chapter = columnNamed(columns, ChapterNames);
    layout.m_verse = columnNamed(columns, VerseNames);
    layout.m_text = columnNamed(columns, TextNames);
    const bool hasPlace = layout.m_book >= 0 && layout.m_chapter >= 0 && layout.m_verse >= 0;
    if (hasPlace)
        layout.m_reference = -1;
    layout.m_isTextLast = layout.m_text == columns.size() - 1;
    return layout.m_text >= 0 && (hasPlace || layout.m_reference >= 0) ? std::optional(layout)
                                                                       : std::nullopt;
}

// Book, chapter, verse and text, as a rule from the first column on; a number of the row may stand
// in front.
std::optional<DelimitedLayout> DelimitedLayout::ofNumbers(const QString& line, QChar delimiter) {
    DelimitedLayout layout;
    layout.m_delimiter = delimiter;
    layout.m_isQuoted = delimiter == u',' || delimiter == u';' || line.startsWith(u'"');
    const QStringList columns = layout.fields(line, -1);
    const auto begins = [&columns](int column) {
        return columns.size() > column + 3 && readChapterNumber(columns[column + 1])
               && readVerseNumber(columns[column + 2]);
    };
    const auto isBook = [&columns](int column) {
        const QString name = columns[column].trimmed();
        return findBook(name) || isApocryphal(name);
    };
    int first = begins(0) ? 0 : -1;
    if (begins(1) && (first < 0 || !isBook(0)) && (first < 0 || isBook(1)))
        first = 1;
    if (first < 0)
        return std::nullopt;
    layout.m_book = first;
    layout.m_chapter = first + 1;
    layout.m_verse = first + 2;
    layout.m_text = first + 3;
    return layout;
}

std::optional<DelimitedLayout> DelimitedLayout::ofReference(const QString& line, QChar delimiter) {
    DelimitedLayout layout;
    layout.m_delimiter = delimiter;
    layout.m_isQuoted = delimiter == u',' || delimiter == u';' || line.startsWith(u'"');
    const QStringList columns = layout.fields(line, -1);
    if (columns.size() < 2 || !matchReference(columns.front(), true).hasMatch())
        return std::nullopt;
    layout.m_reference = 0;
    layout.m_text = 1;
    return layout;
}

std::optional<DelimitedRow> DelimitedLayout::row(const QString& line) const {
    if (m_delimiter.isNull()) {
        const QRegularExpressionMatch match = matchReference(line, false);
        return match.hasMatch() ? std::optional(rowOf(match, match.captured(4))) : std::nullopt;
    }
    const QStringList parts = fields(line, m_isTextLast ? m_text + 1 : -1);
    if (parts.size() <= std::max({m_reference, m_book, m_chapter, m_verse, m_text}))
        return std::nullopt;
    DelimitedRow row;
    if (m_reference >= 0) {
        const QRegularExpressionMatch match = matchReference(parts[m_reference], true);
        if (!match.hasMatch())
            return std::nullopt;
        row = rowOf(match, parts[m_text]);
    } else {
        row = {
            parts[m_book].trimmed(), parts[m_chapter].trimmed(), parts[m_verse].trimmed(),
            parts[m_text], false};
    }
    row.isUnfinished =
        m_isQuoted && m_isTextLast && row.text.startsWith(u'"') && endOfQuoted(row.text) < 0;
    return row;
}

// At most so many, the last one with all that is left of the line; -1 for no limit. A field is
// quoted only if its closing mark ends it, since texts have quotation marks of their own.
QStringList DelimitedLayout::fields(QStringView line, qsizetype most) const {
    QStringList fields;
    for (;;) {
        const bool isLast = fields.size() + 1 == most;
        const qsizetype quoted = m_isQuoted && line.startsWith(u'"') ? endOfQuoted(line) : -1;
        const bool endsField = quoted == line.size() || (quoted > 0 && line[quoted] == m_delimiter);
        if (quoted > 0 && endsField && (!isLast || quoted == line.size())) {
            fields.append(withoutQuotes(line.first(quoted)));
            if (quoted == line.size())
                return fields;
            line = line.sliced(quoted + 1);
            continue;
        }
        const qsizetype end = isLast ? -1 : line.indexOf(m_delimiter);
        fields.append((end < 0 ? line : line.first(end)).toString());
        if (end < 0)
            return fields;
        line = line.sliced(end + 1);
    }
}

QString DelimitedLayout::expectation() const {
    if (m_delimiter.isNull())
        return u"expected a verse such as \"Gen 1:1 text\""_s;
    const QString delimiter = m_delimiter == u'\t' ? u"tabs"_s : u"\"%1\""_s.arg(m_delimiter);
    return m_reference >= 0
               ? u"expected a place such as \"Gen 1:1\" and a text, parted by %1"_s.arg(delimiter)
               : u"expected book, chapter, verse and text, parted by %1"_s.arg(delimiter);
}
