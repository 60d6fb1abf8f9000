#include "makers/NamesMaker.h"

#include "Progress.h"
#include "makers/InfoRow.h"
#include "readers/DataLines.h"
#include "store/DataFile.h"
#include "text/ProperNames.h"

#include <QRegularExpression>
#include <map>

using namespace Qt::StringLiterals;

namespace {

constexpr double HebrewPart = 0.6; // of the work

// "Cæsar" stands beside "Caesar".
struct PlainOrder {
    bool operator()(const QString& left, const QString& right) const {
        const int order = plainSpelling(left).compare(plainSpelling(right), Qt::CaseInsensitive);
        return order < 0 || (order == 0 && left.compare(right, Qt::CaseInsensitive) < 0);
    }
};

using Names = std::map<QString, QStringList, PlainOrder>;

// A source may hold an entry twice.
void add(Names& names, const QString& name, const QString& meaning) {
    QStringList& meanings = names[name];
    if (!meanings.contains(meaning))
        meanings.append(meaning);
}

// The dictionaries name one of a people, "Ammonite", where the Bible mostly speaks of all of them.
void addPeoples(Names& names) {
    static const QRegularExpression ending(u"[a-z\u00E6](?:ite|ean|\u00E6an|ian)$"_s);
    static const QRegularExpression people(
        u"\\b(?:inhabitant|descendant|native|follower|belonging)"_s);
    const Names ones = names;
    for (const auto& [name, meanings] : ones) {
        if (!name.endsWith("ite"_L1) && !name.endsWith("ites"_L1)
            && !people.match(meanings.join(u' ')).hasMatch())
            continue;
        if (ending.match(name).hasMatch())
            names.try_emplace(name + u's', meanings);
        else if (name.endsWith(u's') && ending.match(name.chopped(1)).hasMatch())
            names.try_emplace(name.chopped(1), meanings);
    }
}

void add(Names& names, const QList<ProperName>& found) {
    for (const ProperName& each : found)
        add(names, each.name, each.meaning);
}

SourceInfo infoOf(const SourceInfo& hebrew, const SourceInfo& greek) {
    return {
        u"Names of the Bible and their meanings"_s,
        u"%1, %2"_s.arg(hebrew.source, greek.source),
        hebrew.licence,
    };
}

} // namespace

NamesMaker::NamesMaker(
    std::unique_ptr<SwordEntries> hebrew, std::unique_ptr<SwordEntries> greek, QString additions)
    : m_hebrew(std::move(hebrew))
    , m_greek(std::move(greek))
    , m_additions(std::move(additions)) {}

MadeFile NamesMaker::make(const Order& order, Progress& progress) {
    Names names;
    DataLines additions(m_additions, 2);
    while (const std::optional<QStringList> fields = additions.next())
        add(names, fields->at(0), fields->at(1));
    while (const std::optional<DictionaryEntry> entry = m_hebrew->next()) {
        add(names, namesOfHebrewEntry(entry->key, entry->text));
        progress.advance(m_hebrew->fraction() * HebrewPart);
    }
    while (const std::optional<DictionaryEntry> entry = m_greek->next()) {
        add(names, namesOfGreekEntry(entry->key, readGreekEntry(entry->text)));
        progress.advance(HebrewPart + m_greek->fraction() * (1 - HebrewPart));
    }
    addPeoples(names);
    DataFileWriter writer(order.path);
    writer.execute("CREATE TABLE tblnames (ID INTEGER PRIMARY KEY, name TEXT, definition TEXT)");
    qlonglong id = 0;
    for (const auto& [name, meanings] : names)
        writer.insert(u"tblnames"_s, {++id, name, meanings.join(u' ')});
    writeInfo(writer, infoOf(m_hebrew->info(), m_greek->info()));
    writer.finish();
    return {id, m_hebrew->remarks() + m_greek->remarks()};
}
