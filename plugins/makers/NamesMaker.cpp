#include "makers/NamesMaker.h"

#include "Progress.h"
#include "makers/Headwords.h"
#include "makers/InfoRow.h"
#include "readers/DataLines.h"
#include "store/DataFile.h"
#include "text/ProperNames.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double HebrewPart = 0.6; // of the work

using Names = Headwords<QStringList>;

// A source may hold an entry twice.
void add(Names& names, const QString& name, const QString& meaning) {
    QStringList& meanings = names[name];
    if (!meanings.contains(meaning))
        meanings.append(meaning);
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
    DataFileWriter writer(order.path);
    writer.execute("CREATE TABLE tblnames (ID INTEGER PRIMARY KEY, name TEXT, definition TEXT)");
    qlonglong id = 0;
    for (const auto& [name, meanings] : names)
        writer.insert(u"tblnames"_s, {++id, name, meanings.join(u' ')});
    writeInfo(writer, infoOf(m_hebrew->info(), m_greek->info()));
    writer.finish();
    return {id, m_hebrew->remarks() + m_greek->remarks()};
}
