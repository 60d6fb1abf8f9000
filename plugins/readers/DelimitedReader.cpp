#include "readers/DelimitedReader.h"

#include "basic/Error.h"
#include "readers/VerseNumber.h"
#include "text/Apocrypha.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LongestQuoted = 20'000; // characters

// The body of a verse out of one of our own files: its prefix, in the length of it, or nothing.
struct StoredPrefix {
    qsizetype start = 0;
    qsizetype length = 0;

    static constexpr QChar Marker = QChar(30);
    static constexpr qsizetype Size = 8;

    static std::optional<StoredPrefix> of(QStringView text) {
        if (text.size() < Size || text.front() != Marker)
            return std::nullopt;
        bool hasStart = false;
        bool hasLength = false;
        const StoredPrefix prefix{
            text.sliced(1, 3).toInt(&hasStart), text.sliced(5, 3).toInt(&hasLength)};
        return hasStart && hasLength && prefix.start >= 0 && prefix.length >= 0
                       && prefix.start + prefix.length <= text.size() - Size
                   ? std::optional(prefix)
                   : std::nullopt;
    }
};

} // namespace

DelimitedReader::DelimitedReader(const QString& path)
    : m_lines(path)
    , m_verses(m_lines.fileName()) {
    findLayout();
}

void DelimitedReader::findLayout() {
    m_firstLine = nextLine();
    if (!m_firstLine)
        return;
    const std::optional<DelimitedLayout> layout = DelimitedLayout::of(*m_firstLine);
    if (!layout)
        fail(u"expected book, chapter, verse and text, parted by tabs, commas, "
             u"semicolons or \"|\""_s);
    m_layout = *layout;
    if (m_layout.isHeader())
        m_firstLine.reset();
}

std::optional<QString> DelimitedReader::nextLine() {
    std::optional<QString> line;
    do {
        line = m_lines.next();
    } while (line && (line->startsWith(u'#') || line->trimmed().isEmpty()));
    return line;
}

std::optional<Verse> DelimitedReader::next() {
    for (;;) {
        if (std::optional<Verse> verse = m_verses.take())
            return verse;
        if (m_isThrough)
            return std::nullopt;
        std::optional<QString> line = std::exchange(m_firstLine, std::nullopt);
        if (!line)
            line = nextLine();
        if (line) {
            readLine(*line);
        } else {
            m_isThrough = true;
            m_verses.finish();
        }
    }
}

void DelimitedReader::readLine(QString line) {
    std::optional<DelimitedRow> row = m_layout.row(line);
    if (!row)
        fail(m_layout.expectation());
    startBook(row->book);
    if (!readChapterNumber(row->chapter))
        fail(u"\"%1\" is not the number of a chapter"_s.arg(row->chapter));
    if (!readVerseNumber(row->verse))
        fail(u"\"%1\" is not the number of a verse"_s.arg(row->verse));
    if (row->isUnfinished)
        line = joined(line, *row);
    if (m_chapter != row->chapter)
        m_verses.startChapter(row->chapter);
    m_chapter = row->chapter;
    m_verses.startVerse(row->verse);
    readText(row->text);
    m_verses.endVerse();
}

// A text in quotation marks may go on over several lines. One that just begins with such a mark is
// followed by the next verse.
QString DelimitedReader::joined(QString line, DelimitedRow& row) {
    while (row.isUnfinished && line.size() < LongestQuoted) {
        const std::optional<QString> next = m_lines.peek();
        if (!next || isVerse(*next))
            return line;
        line += u'\n' + *m_lines.next();
        row = m_layout.row(line).value_or(row);
    }
    if (row.isUnfinished)
        fail(u"a quotation mark is never closed"_s);
    return line;
}

bool DelimitedReader::isVerse(const QString& line) const {
    const std::optional<DelimitedRow> row = m_layout.row(line);
    return row && readChapterNumber(row->chapter) && readVerseNumber(row->verse);
}

// A book that is not known is a slip of the pen here, since a line that is left out by mistake
// would not be missed.
void DelimitedReader::startBook(const QString& name) {
    if (m_book == name)
        return;
    if (!findBook(name) && !isApocryphal(name))
        fail(u"\"%1\" is not a book that this program knows"_s.arg(name));
    m_verses.startBook(name);
    m_book = name;
    m_chapter.clear();
}

void DelimitedReader::readText(const QString& text) {
    const QStringView words(text);
    const std::optional<StoredPrefix> prefix = StoredPrefix::of(words);
    if (!prefix)
        return m_verses.append(words, false);
    const QStringView body = words.sliced(StoredPrefix::Size);
    m_verses.append(body.first(prefix->start), false);
    m_verses.append(body.sliced(prefix->start, prefix->length), true);
    m_verses.append(body.sliced(prefix->start + prefix->length), false);
}

void DelimitedReader::fail(const QString& what) const {
    throw Error(
        Error::NotADatabase,
        u"%1:%2: %3"_s.arg(m_lines.fileName(), QString::number(m_lines.number()), what));
}

QStringList DelimitedReader::remarks() const {
    return m_verses.remarks() + m_lines.remarks();
}

SourceInfo DelimitedReader::info() const {
    const QFileInfo file(m_lines.fileName());
    return {file.completeBaseName(), u"text file %1"_s.arg(file.fileName()), u"the user's own"_s};
}
