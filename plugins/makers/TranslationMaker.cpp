#include "makers/TranslationMaker.h"

#include "Progress.h"
#include "basic/Error.h"
#include "makers/CarriedNotes.h"
#include "store/DataFile.h"

#include <QDate>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Of the whole work, the part that is done when the source is read.
constexpr double ReadingPart = 0.5;

bool isSamePlace(const Verse& verse, const Verse& other) {
    return verse.address == other.address;
}

} // namespace

TranslationMaker::TranslationMaker(std::unique_ptr<VerseSource> source)
    : m_source(std::move(source)) {}

MadeFile TranslationMaker::make(const Order& order, Progress& progress) {
    CarriedNotes notes = order.replaces ? CarriedNotes(order.path) : CarriedNotes();
    readVerses(progress);
    sortVerses();
    DataFileWriter writer(order.path);
    createTranslationSchema(writer);
    writeVerses(writer, notes, progress);
    notes.keepRest(writer);
    writeInfo(writer);
    writer.finish();
    const QStringList remarks = m_source->remarks() + chapterRemarks() + notes.remarks();
    return {static_cast<qsizetype>(m_verses.size()), remarks};
}

void TranslationMaker::readVerses(Progress& progress) {
    while (std::optional<Verse> verse = m_source->next()) {
        m_verses.push_back(std::move(*verse));
        progress.advance(m_source->fraction() * ReadingPart);
    }
    if (m_verses.empty())
        throw Error(
            Error::NotADatabase,
            u"%1 holds no verse of the 66 books."_s.arg(m_source->info().source));
}

// A source may have its own order of books. Of a verse that it holds twice the first one counts.
void TranslationMaker::sortVerses() {
    std::stable_sort(m_verses.begin(), m_verses.end(), [](const Verse& a, const Verse& b) {
        return a.address < b.address;
    });
    for (auto verse = m_verses.begin(); verse != m_verses.end();) {
        verse = std::adjacent_find(verse, m_verses.end(), isSamePlace);
        if (verse != m_verses.end())
            m_repeated.append(verseName((verse++)->address));
    }
    m_verses.erase(std::unique(m_verses.begin(), m_verses.end(), isSamePlace), m_verses.end());
}

void TranslationMaker::writeVerses(
    DataFileWriter& writer, CarriedNotes& notes, Progress& progress) const {
    const QString table = u"tblMain"_s;
    qlonglong id = 0;
    for (const Verse& verse : m_verses) {
        const VerseAddress& at = verse.address;
        const QString note = notes.take(at);
        writer.insert(
            table, {++id, at.book, at.chapter, at.verse, verse.body,
                    note.isNull() ? QVariant() : QVariant(note)});
        const double written = double(id) / double(m_verses.size());
        progress.advance(ReadingPart + written * (1 - ReadingPart));
    }
}

void TranslationMaker::writeInfo(DataFileWriter& writer) const {
    createInfoTable(writer);
    const SourceInfo info = m_source->info();
    writer.insert(
        u"tblInfo"_s,
        {info.title, info.source, info.licence, QDate::currentDate().toString(Qt::ISODate)});
}

// The catalogue's chapter lists end at its own count, so the program cannot reach what lies behind.
QStringList TranslationMaker::chapterRemarks() const {
    QStringList beyond;
    for (const Book& book : books()) {
        const auto behind = std::upper_bound(
            m_verses.begin(), m_verses.end(), book.number,
            [](int number, const Verse& verse) { return number < verse.address.book; });
        if (behind == m_verses.begin())
            continue;
        const VerseAddress& last = std::prev(behind)->address;
        if (last.book == book.number && last.chapter > book.chapters)
            beyond.append(u"%1 %2"_s.arg(book.name).arg(last.chapter));
    }
    QStringList remarks;
    if (!beyond.isEmpty())
        remarks.append(
            u"chapters behind the catalogue's last one, as far as: %1"_s.arg(beyond.join(u", "_s)));
    if (!m_repeated.isEmpty())
        remarks.append(
            u"verses that the source repeats, taken once: %1"_s.arg(m_repeated.join(u", "_s)));
    return remarks;
}
