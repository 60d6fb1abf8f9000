#include "check/DataFileKinds.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array Verses{"ID"_L1, "book"_L1, "chapter"_L1, "verse"_L1, "body"_L1, "note"_L1};
constexpr std::array TopicNames{"unique"_L1, "topicname"_L1};
constexpr std::array TopicVerses{"unique"_L1,  "ordinal"_L1, "book"_L1,
                                 "chapter"_L1, "verse"_L1,   "body"_L1};
constexpr std::array Comments{"ID"_L1, "book"_L1, "chapter"_L1, "comment"_L1};
constexpr std::array Lexicon{"strong"_L1,     "word"_L1,      "sound"_L1,     "greek"_L1,
                             "wordorigin"_L1, "wordusage"_L1, "definition"_L1};
constexpr std::array Names{""_L1, "name"_L1, ""_L1};
constexpr std::array Words{""_L1, "word"_L1, ""_L1, ""_L1};
constexpr std::array Events{"id"_L1, "year"_L1, "event"_L1};

constexpr std::array Translation{TableNeeds{"tblMain"_L1, Verses, "VerseIndex"_L1, -1, false}};
constexpr std::array Topics{
    TableNeeds{"tblTopicName"_L1, TopicNames, ""_L1, -1, false},
    TableNeeds{"tblData"_L1, TopicVerses, ""_L1, -1, false}};
constexpr std::array Commentary{TableNeeds{"tblComment"_L1, Comments, ""_L1, 3, true}};
constexpr std::array GreekLexicon{TableNeeds{"greek_lexicon"_L1, Lexicon, ""_L1, 1, false}};
constexpr std::array NameDictionary{TableNeeds{"tblnames"_L1, Names, ""_L1, 1, false}};
constexpr std::array Concordance{TableNeeds{"Easton"_L1, Names, ""_L1, 1, false}};
constexpr std::array WordDictionary{TableNeeds{"tblDictionary"_L1, Words, ""_L1, 1, false}};
constexpr std::array TimeLine{
    TableNeeds{"tblBC"_L1, Events, ""_L1, -1, true},
    TableNeeds{"tblAD"_L1, Events, ""_L1, -1, true}};

constexpr std::array Kinds{
    DataFileKind{"a translation"_L1, Translation},
    DataFileKind{"topics"_L1, Topics},
    DataFileKind{"a commentary"_L1, Commentary},
    DataFileKind{"a Greek lexicon"_L1, GreekLexicon},
    DataFileKind{"a dictionary of names"_L1, NameDictionary},
    DataFileKind{"a concordance"_L1, Concordance},
    DataFileKind{"a dictionary of words"_L1, WordDictionary},
    DataFileKind{"a time line"_L1, TimeLine},
};

bool hasIndex(const TableSummary& table, QLatin1String name) {
    return std::ranges::any_of(table.indexes, [name](const QString& index) {
        return index.compare(name, Qt::CaseInsensitive) == 0;
    });
}

} // namespace

const DataFileKind* kindOf(const QList<TableSummary>& tables) {
    const auto kind = std::ranges::find_if(Kinds, [&tables](const DataFileKind& each) {
        return tableNamed(tables, each.tables.front().name) != nullptr;
    });
    return kind == Kinds.end() ? nullptr : kind;
}

const TableSummary* tableNamed(const QList<TableSummary>& tables, QLatin1String name) {
    const auto table = std::ranges::find_if(tables, [name](const TableSummary& each) {
        return each.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return table == tables.end() ? nullptr : &*table;
}

QStringList lacksOf(const TableNeeds& needs, const TableSummary& table) {
    QStringList lacks;
    for (size_t place = 0; place < needs.columns.size(); ++place) {
        const QLatin1String wanted = needs.columns[place];
        const QString found = table.columns.value(qsizetype(place));
        if (found.isNull()
            || (!wanted.isEmpty() && found.compare(wanted, Qt::CaseInsensitive) != 0))
            lacks.append(u"field %1 of the table %2 is %3; expected %4"_s.arg(
                QString::number(place), table.name, found.isNull() ? u"missing"_s : found,
                wanted.isEmpty() ? u"a text"_s : QString(wanted)));
    }
    if (!needs.index.isEmpty() && !hasIndex(table, needs.index))
        lacks.append(u"the table %1 lacks the index %2"_s.arg(table.name, QString(needs.index)));
    return lacks;
}
