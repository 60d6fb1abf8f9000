#include "readers/UsfmReader.h"

#include "readers/UsfmMarkers.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

// What stands behind a backslash: "q2", "+nd", "wj*", "qt-s", "*".
struct UsfmReader::Marker {
    QString name;
    bool isNested = false; // keeps open what is open
    bool isEnd = false;
    qsizetype length = 0; // in the line, with the blank that belongs to it; 0 for no marker

    static Marker at(QStringView text);
    bool isMilestone() const { return name.endsWith("-s"_L1) || name.endsWith("-e"_L1); }
    bool isPlace() const;
};

namespace {

bool isMarkerCharacter(QChar character) {
    return character < u'\u0080' && (character.isLetterOrNumber() || character == u'-');
}

bool isDigit(QChar character) {
    return character.isDigit();
}

// The word in front, taken off.
QString takeWord(QStringView& text) {
    text = text.trimmed();
    const auto* end = std::find_if(
        text.begin(), text.end(), [](QChar each) { return each.isSpace() || each == u'\\'; });
    QString word = text.first(end - text.begin()).toString();
    text = text.sliced(word.size());
    return word;
}

// Attributes follow the words of a marker: "word|lemma="x"".
QStringView withoutAttributes(QStringView text, const QString& marker) {
    static constexpr std::array Bearers{"w"_L1, "rb"_L1, "jmp"_L1, "wg"_L1, "wh"_L1, "wa"_L1};
    static const QRegularExpression attribute(uR"(^\|\s*[\w-]+\s*=\s*")"_s);
    const qsizetype bar = text.indexOf(u'|');
    if (bar < 0 || marker.isEmpty())
        return text;
    const bool isAttribute = std::find(Bearers.begin(), Bearers.end(), marker) != Bearers.end()
                             || attribute.match(text.sliced(bar)).hasMatch();
    return isAttribute ? text.first(bar) : text;
}

} // namespace

UsfmReader::Marker UsfmReader::Marker::at(QStringView text) {
    Marker marker;
    QStringView rest = text.sliced(1);
    marker.isNested = rest.startsWith(u'+');
    if (marker.isNested)
        rest = rest.sliced(1);
    const auto* end = std::find_if_not(rest.begin(), rest.end(), isMarkerCharacter);
    marker.name = rest.first(end - rest.begin()).toString().toLower();
    rest = rest.sliced(marker.name.size());
    marker.isEnd = rest.startsWith(u'*');
    if (marker.isEnd || rest.startsWith(u' '))
        rest = rest.sliced(1);
    const bool isMarker = marker.name.isEmpty() ? marker.isEnd : marker.name.front().isLetter();
    marker.length = isMarker ? text.size() - rest.size() : 0;
    return marker;
}

// Whether it begins a book, a chapter or a verse. Some texts glue the number to the marker.
bool UsfmReader::Marker::isPlace() const {
    if (isEnd)
        return false;
    if (name == "id"_L1)
        return true;
    return (name.startsWith(u'c') || name.startsWith(u'v'))
           && std::all_of(name.begin() + 1, name.end(), isDigit);
}

UsfmReader::UsfmReader(const QString& path)
    : m_lines(path)
    , m_verses(m_lines.fileName()) {}

std::optional<Verse> UsfmReader::next() {
    for (;;) {
        if (std::optional<Verse> verse = m_verses.take())
            return verse;
        if (m_isThrough)
            return std::nullopt;
        if (const std::optional<QString> line = m_lines.next()) {
            readLine(*line);
        } else {
            m_isThrough = true;
            closeAll();
            m_verses.finish();
        }
    }
}

void UsfmReader::readLine(QStringView line) {
    m_isInMilestone = false;
    while (!line.isEmpty()) {
        const Marker marker = line.front() == u'\\' ? Marker::at(line) : Marker();
        if (marker.length > 0) {
            line = readMarker(marker, line.sliced(marker.length));
            continue;
        }
        const qsizetype next = line.indexOf(u'\\', 1);
        characters(next < 0 ? line : line.first(next));
        line = line.sliced(next < 0 ? line.size() : next);
    }
    characters(u" ");
}

// What is left of the line.
QStringView UsfmReader::readMarker(const Marker& marker, QStringView rest) {
    if (m_isInMilestone) // up to "\*"
        m_isInMilestone = !marker.name.isEmpty();
    else if (marker.isPlace())
        return readPlace(marker, rest);
    else if (marker.isMilestone() || (!marker.isEnd && rest.startsWith(u"\\*")))
        m_isInMilestone = true;
    else
        readMarkup(marker);
    return rest;
}

void UsfmReader::readMarkup(const Marker& marker) {
    if (marker.name == "esb"_L1 || marker.name == "esbe"_L1) {
        openBlock(MarkupKind::Heading);
        m_isInSidebar = marker.name == "esb"_L1;
    } else if (m_isInSidebar) {
        return;
    } else if (marker.isEnd) {
        closeInline(marker.name);
    } else if (const UsfmMarker meaning = usfmMarker(marker.name); meaning.isBlock) {
        openBlock(meaning.kind);
    } else {
        openInline(marker, meaning.kind);
    }
}

QStringView UsfmReader::readPlace(const Marker& marker, QStringView rest) {
    const bool isBook = marker.name == "id"_L1;
    QString word = isBook ? QString() : marker.name.sliced(1);
    if (word.isEmpty())
        word = takeWord(rest);
    m_isInSidebar = false;
    if (marker.name.startsWith(u'v')) {
        startVerse(word);
        return rest;
    }
    closeAll();
    if (isBook)
        m_verses.startBook(word);
    else
        m_verses.startChapter(word);
    m_hasBook = m_hasBook || isBook;
    openBlock(isBook ? MarkupKind::Heading : MarkupKind::Separate);
    return rest;
}

// A verse goes on in the paragraph in hand, unless that is a heading.
void UsfmReader::startVerse(const QString& number) {
    endNote();
    if (m_hasBook)
        m_verses.startVerse(number);
    if (m_block != MarkupKind::Separate)
        openBlock(MarkupKind::Separate);
}

void UsfmReader::openBlock(MarkupKind kind) {
    closeAll();
    m_block = kind;
    m_open.open(kind);
}

// Without "+" a style ends the one before; a note stands within it. What stands within a note need
// not be told apart.
void UsfmReader::openInline(const Marker& marker, MarkupKind kind) {
    if (!m_note.isEmpty())
        return;
    if (kind == MarkupKind::Note)
        m_note = marker.name;
    while (m_note.isEmpty() && !marker.isNested && !m_inline.isEmpty())
        closeInline(QString(m_inline.last()));
    m_inline.append(marker.name);
    m_open.open(kind);
}

void UsfmReader::closeInline(QStringView name) {
    if (!m_note.isEmpty() && m_note != name)
        return;
    m_note.clear();
    if (!m_inline.contains(name))
        return;
    while (m_inline.takeLast() != name)
        m_open.close();
    m_open.close();
}

void UsfmReader::characters(QStringView text) {
    if (m_isInMilestone)
        return;
    text = withoutAttributes(text, m_inline.isEmpty() ? QString() : m_inline.last());
    if (!text.contains(u'~') && !text.contains(u"//"))
        return m_open.characters(text);
    QString words = text.toString(); // a blank that no line breaks at, a line end that may be
    m_open.characters(words.replace(u'~', u' ').replace(u"//"_s, u" "_s));
}

// A note that was not ended ends with the verse at the latest, or it would hide the text.
void UsfmReader::endNote() {
    if (m_note.isEmpty())
        return;
    m_endlessNotes.add(m_verses.placeName());
    closeInline(QString(m_note));
}

void UsfmReader::closeAll() {
    endNote();
    m_inline.clear();
    m_block = MarkupKind::Plain;
    while (m_open.depth() > 0)
        m_open.close();
}

QStringList UsfmReader::remarks() const {
    QStringList remarks = m_verses.remarks();
    if (!m_hasBook)
        remarks.append(
            u"%1 has no \\id line that names its book, and was left out"_s.arg(m_lines.fileName()));
    m_endlessNotes.report(remarks, u"notes without an end, taken to end with their verse"_s);
    return remarks + m_lines.remarks();
}

SourceInfo UsfmReader::info() const {
    const QFileInfo file(m_lines.fileName());
    return {file.completeBaseName(), u"USFM file %1"_s.arg(file.fileName()), u"the user's own"_s};
}
