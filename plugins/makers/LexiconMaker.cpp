#include "makers/LexiconMaker.h"

#include "Progress.h"
#include "makers/InfoRow.h"
#include "store/DataFile.h"
#include "text/BookTable.h"
#include "text/GlossList.h"
#include "text/Renderings.h"
#include "text/StrongsGreek.h"

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr double ReadingPart = 0.8; // of the work: the translation
constexpr int FirstGreekBook = 40;
const QString Table = u"greek_lexicon"_s;

struct Row {
    int number;
    GreekEntry entry;
    double weight; // the heavier, the earlier
};

Renderings readRenderings(SwordModule& tagged, Progress& progress) {
    Renderings renderings;
    while (tagged.next()) {
        const Book* book = findBook(tagged.book());
        if (book && book->number >= FirstGreekBook)
            renderings.add(tagged.entry());
        progress.advance(tagged.fraction() * ReadingPart);
    }
    return renderings;
}

// An entry with many glosses is found by many words and the right one for few of them.
double weightOf(int number, const GreekEntry& entry, const Renderings& renderings) {
    const qsizetype glosses = topLevelParts(entry.usage, u',').size();
    return glosses == 0 ? 0 : double(renderings.countOf(number, entry.usage)) / double(glosses);
}

// It also shows where a typed quotation mark breaks the look-up.
QVariantList aboutThisLexicon(const SourceInfo& info) {
    return {
        u"About this lexicon"_s,
        info.title,
        u"by James Strong, 1890"_s,
        QString(),
        u"%1. %2."_s.arg(info.source, info.licence),
        u"Highlight one English word of the text and look it up."_s,
        u"1) A look-up shows the entry whose usage has the word, and of several the one that the "
        u"King James Version renders by it most. 2) This page is shown for a text with a quotation "
        u"mark, which cannot be looked up."_s,
    };
}

QStringList remarkOnDamage(const std::vector<Row>& rows) {
    const auto damaged =
        std::ranges::count_if(rows, [](const Row& row) { return row.entry.isDamaged; });
    if (damaged == 0)
        return {};
    return {u"%1 entries with damaged mark-up, their parts guessed"_s.arg(damaged)};
}

QVariantList fieldsOf(const Row& row) {
    const GreekEntry& entry = row.entry;
    return {QString::number(row.number),
            entry.word,
            entry.sound,
            entry.greek,
            entry.origin,
            entry.usage,
            numberedSenses(entry.sense)};
}

} // namespace

LexiconMaker::LexiconMaker(
    std::unique_ptr<SwordEntries> source, std::unique_ptr<SwordModule> tagged)
    : m_source(std::move(source))
    , m_tagged(std::move(tagged)) {}

MadeFile LexiconMaker::make(const Order& order, Progress& progress) {
    const Renderings renderings = readRenderings(*m_tagged, progress);
    std::vector<Row> rows;
    while (const std::optional<DictionaryEntry> found = m_source->next()) {
        const int number = found->key.toInt();
        GreekEntry entry = readGreekEntry(found->text);
        if (!entry.isUsed())
            continue;
        const double weight = weightOf(number, entry, renderings);
        rows.push_back({number, std::move(entry), weight});
        progress.advance(ReadingPart + m_source->fraction() * (1 - ReadingPart));
    }
    std::ranges::stable_sort(rows, std::ranges::greater(), &Row::weight);
    DataFileWriter writer(order.path);
    writer.execute("CREATE TABLE greek_lexicon (strong TEXT, word TEXT, sound TEXT, greek TEXT, "
                   "wordorigin TEXT, wordusage TEXT, definition TEXT)");
    writer.insert(Table, aboutThisLexicon(m_source->info()));
    for (const Row& row : rows)
        writer.insert(Table, fieldsOf(row));
    writeInfo(writer, m_source->info());
    writer.finish();
    return {qsizetype(rows.size()) + 1, m_source->remarks() + remarkOnDamage(rows)};
}
