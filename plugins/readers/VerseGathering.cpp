#include "readers/VerseGathering.h"

#include "basic/Error.h"
#include "readers/VerseNumber.h"
#include "text/RedLetterRun.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LongestVerse = 100'000; // characters; the longest there is has some 600
constexpr int Psalms = 19;

bool isBlank(QStringView text) {
    return std::all_of(text.begin(), text.end(), [](QChar each) { return each.isSpace(); });
}

} // namespace

VerseGathering::VerseGathering(QString file)
    : m_file(std::move(file)) {}

void VerseGathering::startBook(const QString& name) {
    complete();
    dropTitle();
    m_bookName = name.trimmed();
    m_book = findBook(m_bookName);
    if (!m_book)
        m_booksLeftOut.addOnce(m_bookName.isEmpty() ? u"a book without a name"_s : m_bookName);
    // The few books of one chapter do not always number it.
    m_chapter = m_book && m_book->chapters == 1 ? 1 : 0;
    m_chapterName = QString::number(m_chapter);
}

void VerseGathering::startChapter(QStringView number) {
    complete();
    dropTitle();
    m_chapter = readChapterNumber(number).value_or(0);
    m_chapterName = number.trimmed().toString();
}

// A title that no verse follows.
void VerseGathering::dropTitle() {
    if (!std::exchange(m_title, {}).text().isEmpty())
        m_strays.addOnce(placeName());
}

void VerseGathering::startVerse(const QString& number) {
    const std::optional<VerseNumber> read = readVerseNumber(number);
    if (read && m_book && m_hasVerse && read->isLaterPart
        && m_address == VerseAddress{m_book->number, m_chapter, read->first}) {
        m_place = Place::Verse;
        return m_text.separate();
    }
    complete();
    m_place = Place::LeftOut;
    if (!m_book)
        return;
    if (!read || m_chapter < 1)
        return m_unnumbered.add(placeName() + u':' + number);
    if (read->isRange)
        m_ranges.add(placeName() + u':' + number);
    else if (read->isPart)
        m_parts.add(placeName() + u':' + number);
    beginVerse({m_book->number, m_chapter, read->first});
}

// Some texts number the titles of psalms as verse 0.
void VerseGathering::beginVerse(const VerseAddress& address) {
    if (address.verse > 0) {
        m_address = address;
        m_hasVerse = true;
        m_place = Place::Verse;
        m_text = std::exchange(m_title, {});
        m_text.separate();
        m_ends.see(address);
    } else if (address.book == Psalms) {
        m_zeroTitles.add(placeName());
        m_place = Place::Title;
    } else {
        m_verseZeros.add(placeName());
    }
}

void VerseGathering::endVerse() {
    if (m_place != Place::Title)
        m_place = Place::Outside;
    else
        m_title.separate();
}

void VerseGathering::startTitle() {
    if (m_place == Place::Outside)
        m_place = Place::Title;
    separate();
}

void VerseGathering::endTitle() {
    separate();
    if (m_place == Place::Title)
        m_place = Place::Outside;
}

MarkedText* VerseGathering::target() {
    if (m_place == Place::Verse)
        return &m_text;
    return m_place == Place::Title ? &m_title : nullptr;
}

void VerseGathering::append(QStringView text, bool red) {
    if (MarkedText* words = target()) {
        words->append(text, red);
        checkLength(*words);
    } else if (m_place == Place::Outside && m_book && !isBlank(text)) {
        m_strays.addOnce(placeName());
    }
}

void VerseGathering::append(const MarkedText& text) {
    const QStringView words = text.text();
    qsizetype at = 0;
    for (const RedRun& run : text.redRuns()) {
        append(words.sliced(at, run.start - at), false);
        append(words.sliced(run.start, run.length), true);
        at = run.end();
    }
    append(words.sliced(at), false);
}

void VerseGathering::separate() {
    if (MarkedText* words = target())
        words->separate();
}

void VerseGathering::markJoint() {
    if (MarkedText* words = target())
        words->markJoint();
}

void VerseGathering::finish() {
    complete();
    dropTitle();
}

void VerseGathering::complete() {
    const MarkedText text = std::exchange(m_text, {});
    if (std::exchange(m_hasVerse, false) && !text.text().isEmpty())
        m_complete.append({m_address, storedBody(text), {}});
    m_place = Place::Outside;
}

std::optional<Verse> VerseGathering::take() {
    if (m_complete.isEmpty())
        return std::nullopt;
    return m_complete.takeFirst();
}

void VerseGathering::checkLength(const MarkedText& text) const {
    if (text.text().size() > LongestVerse)
        throw Error(
            Error::NotADatabase,
            u"%1: a verse of %2 is longer than %3 characters, so this is no text of verses."_s.arg(
                m_file, placeName(), QString::number(LongestVerse)));
}

QString VerseGathering::placeName() const {
    const QString book = m_book ? QString(m_book->name) : m_bookName;
    return m_chapterName.isEmpty() || m_chapterName == "0"_L1 ? book : book + u' ' + m_chapterName;
}

QStringList VerseGathering::remarks() const {
    QStringList remarks;
    m_booksLeftOut.report(remarks, u"left out, since they are none of the 66 books"_s);
    m_unnumbered.report(remarks, u"left out, since their numbers cannot be read"_s);
    m_verseZeros.report(remarks, u"left out, verse 0 of"_s);
    m_zeroTitles.report(remarks, u"verse 0 taken as the psalm's title"_s);
    m_ranges.report(remarks, u"verses that stand together, kept at the first one"_s);
    m_parts.report(remarks, u"parts of verses, kept under the number of the verse"_s);
    m_strays.report(remarks, u"words outside of verses left out"_s);
    m_ends.report(remarks);
    return remarks;
}
