#include "readers/OsisReader.h"

using namespace Qt::StringLiterals;

namespace {

// More than any verse has with its notes.
constexpr qsizetype LargestPending = 1'000'000;

// An address such as "Bible.KJV:Gen.1.1!a": its parts, without the work and the place in the verse.
QList<QStringView> partsOf(QStringView id) {
    return id.sliced(id.lastIndexOf(u':') + 1).split(u'!').first().split(u'.');
}

// "Gen.1.1!b": the part of a verse that follows the one with the letter before.
QString numberOf(QStringView id) {
    const QList<QStringView> parts = partsOf(id);
    const qsizetype mark = id.indexOf(u'!');
    const QStringView part = mark < 0 ? QStringView() : id.sliced(mark + 1);
    const bool isLetter = part.size() == 1 && part.front().isLetter();
    return parts.value(2).toString() + (isLetter ? part.toString() : QString());
}

bool isPsalmTitle(QStringView name, const QXmlStreamAttributes& attributes) {
    return name == "title"_L1 && attributes.value("canonical"_L1) == "true"_L1
           && attributes.value("type"_L1) == "psalm"_L1;
}

} // namespace

OsisReader::OsisReader(const QString& path)
    : XmlVerses(path, u"OSIS"_s) {}

void OsisReader::startElement(QStringView name, const QXmlStreamAttributes& attributes) {
    startHeaderElement(name);
    const bool holdsVerse = startVerseOrTitle(name, attributes);
    m_text.startElement(name, attributes);
    if (holdsVerse)
        (name == "verse"_L1 ? m_verseDepth : m_titleDepth) = m_text.openElements();
}

void OsisReader::startHeaderElement(QStringView name) {
    m_isInHeader = m_isInHeader || name == "header"_L1;
    if (m_isInHeader && name == "title"_L1)
        takeTitle();
    else if (m_isInHeader && name == "rights"_L1)
        takeLicence();
}

// Whether the end of this element will end a verse or a title.
bool OsisReader::startVerseOrTitle(QStringView name, const QXmlStreamAttributes& attributes) {
    const bool isEnd = attributes.hasAttribute("eID"_L1);
    const QStringView ids = attributes.value("osisID"_L1);
    if (name == "div"_L1 && !isEnd && attributes.value("type"_L1) == "book"_L1) {
        passText();
        startBook(ids);
    } else if (name == "chapter"_L1 && !isEnd) {
        const QList<QStringView> parts = partsOf(ids);
        passText();
        startChapter(parts.value(0), parts.value(1));
    } else if (name == "verse"_L1) {
        passText();
        if (isEnd)
            verses().endVerse();
        else
            startVerse(ids.isEmpty() ? attributes.value("sID"_L1) : ids);
        return !isEnd && !attributes.hasAttribute("sID"_L1);
    } else if (isPsalmTitle(name, attributes) && !verses().isInVerse()) {
        passText();
        verses().startTitle();
        return true;
    }
    return false;
}

void OsisReader::startVerse(QStringView ids) {
    const QList<QStringView> all = ids.split(u' ', Qt::SkipEmptyParts);
    const QList<QStringView> parts = partsOf(all.value(0));
    startChapter(parts.value(0), parts.value(1));
    QString number = numberOf(all.value(0));
    if (all.size() > 1)
        number += u'-' + partsOf(all.last()).value(2).toString();
    verses().startVerse(number);
}

void OsisReader::startBook(QStringView book) {
    if (book.isEmpty() || m_book == book)
        return;
    m_book = book.toString();
    m_chapter.clear();
    verses().startBook(m_book);
}

void OsisReader::startChapter(QStringView book, QStringView chapter) {
    startBook(book);
    if (m_chapter != chapter) {
        m_chapter = chapter.toString();
        verses().startChapter(chapter);
    }
}

void OsisReader::endElement(QStringView name) {
    const qsizetype depth = m_text.openElements();
    m_text.endElement();
    if (name == "header"_L1)
        m_isInHeader = false;
    if (depth == 1) // the document's end
        passText();
    if (depth == m_verseDepth) {
        passText();
        verses().endVerse();
        m_verseDepth = -1;
    } else if (depth == m_titleDepth) {
        passText();
        verses().endTitle();
        m_titleDepth = -1;
    }
}

void OsisReader::characters(QStringView text) {
    m_text.characters(text);
    m_pending += text.size();
    if (m_pending > LargestPending)
        passText();
}

// To the verse in hand, or to nowhere.
void OsisReader::passText() {
    verses().append(m_text.takeVerse());
    m_pending = 0;
}
