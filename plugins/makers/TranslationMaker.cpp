#include "makers/TranslationMaker.h"

#include "Progress.h"
#include "basic/Error.h"
#include "makers/CarriedNotes.h"
#include "makers/InfoRow.h"
#include "readers/NameList.h"
#include "store/DataFile.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Of the whole work, the part that is done when the source is read.
constexpr double ReadingPart = 0.5;

// What is held in memory to be put in order; the longest Bibles have a fifth of it.
constexpr std::size_t MostVerses = 200'000;
constexpr qsizetype MostCharacters = 30'000'000;

const QString BlankLine = u"\r\n\r\n"_s;

// One note out of two, neither of them lost; a note that says nothing new adds nothing.
QString joinedNotes(const QString& first, const QString& second) {
    if (second.trimmed().isEmpty() || first == second || first.endsWith(BlankLine + second))
        return first;
    return first.trimmed().isEmpty() ? second : first + BlankLine + second;
}

} // namespace

TranslationMaker::TranslationMaker(std::unique_ptr<VerseSource> source)
    : m_source(std::move(source)) {}

MadeFile TranslationMaker::make(const Order& order, Progress& progress) {
    readVerses(progress);
    sortVerses();
    CarriedNotes notes = order.replaces ? CarriedNotes(order.path) : CarriedNotes();
    DataFileWriter writer(order.path);
    createTranslationSchema(writer);
    writeVerses(writer, notes, progress);
    if (m_rows == 0)
        failWithoutVerse();
    notes.keepRest(writer);
    writeInfo(writer, m_source->info());
    writer.finish();
    const QStringList remarks =
        m_source->remarks() + verseRemarks() + notes.remarks() + sourceNoteRemarks();
    return {m_rows, remarks};
}

void TranslationMaker::readVerses(Progress& progress) {
    qsizetype characters = 0;
    while (std::optional<Verse> verse = m_source->next()) {
        characters += verse->body.size() + verse->note.size();
        if (m_verses.size() == MostVerses || characters > MostCharacters)
            throw Error(
                Error::NotADatabase,
                u"%1 holds more than %2 verses or %3 characters, which is no Bible."_s.arg(
                    m_source->info().source, QString::number(MostVerses),
                    QString::number(MostCharacters)));
        m_verses.push_back(std::move(*verse));
        progress.advance(m_source->fraction() * ReadingPart);
    }
    if (m_verses.empty())
        failWithoutVerse();
}

void TranslationMaker::failWithoutVerse() const {
    const QString what = u"%1 holds no verse of the 66 books."_s.arg(m_source->info().source);
    const QStringList remarks = m_source->remarks();
    throw Error(
        Error::NotADatabase,
        remarks.isEmpty() ? what : u"%1 (%2)"_s.arg(what, remarks.join(u"; "_s)));
}

// A source may have its own order of books. Of a verse that it holds twice the first one counts,
// with the notes of both.
void TranslationMaker::sortVerses() {
    std::stable_sort(m_verses.begin(), m_verses.end(), [](const Verse& a, const Verse& b) {
        return a.address < b.address;
    });
    auto kept = m_verses.begin();
    for (auto verse = std::next(kept); verse != m_verses.end(); ++verse) {
        if (verse->address != kept->address) {
            if (++kept != verse)
                *kept = std::move(*verse);
            continue;
        }
        m_repeated.add(verseName(verse->address));
        kept->note = joinedNotes(kept->note, verse->note);
        if (kept->body.isEmpty())
            kept->body = std::move(verse->body);
    }
    m_verses.erase(std::next(kept), m_verses.end());
}

void TranslationMaker::writeVerses(
    DataFileWriter& writer, CarriedNotes& notes, Progress& progress) {
    for (const Verse& verse : m_verses) {
        if (verse.body.isEmpty()) {
            notes.keep(verse.address, verse.note);
            continue;
        }
        const VerseAddress& at = verse.address;
        const QString note = noteFor(verse, notes);
        notes.compareBody(at, verse.body);
        writer.insert(
            u"tblMain"_s, {++m_rows, at.book, at.chapter, at.verse, verse.body,
                           note.isEmpty() ? QVariant() : QVariant(note)});
        const double written = double(m_rows) / double(m_verses.size());
        progress.advance(ReadingPart + written * (1 - ReadingPart));
    }
}

// What the file's owner wrote comes before what the source brings.
QString TranslationMaker::noteFor(const Verse& verse, CarriedNotes& notes) {
    const QString own = notes.take(verse.address);
    QString note = joinedNotes(own, verse.note);
    if (note != own)
        ++(own.isEmpty() ? m_notesStored : m_notesJoined);
    return note;
}

// The catalogue's chapter lists end at its own count, so the program cannot reach what lies behind.
QStringList TranslationMaker::verseRemarks() const {
    NameList beyond;
    for (const Book& book : books()) {
        const auto behind = std::upper_bound(
            m_verses.begin(), m_verses.end(), book.number,
            [](int number, const Verse& verse) { return number < verse.address.book; });
        if (behind == m_verses.begin())
            continue;
        const VerseAddress& last = std::prev(behind)->address;
        if (last.book == book.number && last.chapter > book.chapters)
            beyond.add(u"%1 %2"_s.arg(book.name).arg(last.chapter));
    }
    QStringList remarks;
    beyond.report(remarks, u"chapters behind the catalogue's last one, as far as"_s);
    m_repeated.report(remarks, u"verses that the source repeats, taken once"_s);
    return remarks;
}

QStringList TranslationMaker::sourceNoteRemarks() const {
    QStringList remarks;
    if (m_notesStored > 0)
        remarks.append(u"%1 note(s) of the source stored"_s.arg(m_notesStored));
    if (m_notesJoined > 0)
        remarks.append(
            u"%1 note(s) of the source put behind a note that was there"_s.arg(m_notesJoined));
    return remarks;
}
