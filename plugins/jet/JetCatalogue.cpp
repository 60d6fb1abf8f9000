#include "jet/JetCatalogue.h"

#include "basic/Error.h"
#include "jet/JetRows.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 CatalogueDefinition = 2; // the page
const QString CatalogueName = u"MSysObjects"_s;
const QString SystemPrefix = u"MSys"_s;

constexpr int TypeMask = 0x7f;
constexpr int TableType = 1;
constexpr quint32 SystemFlags = 0x80000002;
constexpr quint32 PageMask = 0x00ffffff;

const JetColumn& fieldOf(const JetTable& catalogue, const QString& name) {
    const JetColumn* const column = catalogue.columnNamed(name);
    if (!column)
        catalogue.file().failAsDamaged(u"it has no field \"%1\""_s.arg(name));
    return *column;
}

} // namespace

QList<JetCatalogueEntry> readJetCatalogue(JetFile& file) {
    JetTable catalogue(file, CatalogueDefinition, CatalogueName);
    const JetColumn& id = fieldOf(catalogue, u"Id"_s);
    const JetColumn& name = fieldOf(catalogue, u"Name"_s);
    const JetColumn& type = fieldOf(catalogue, u"Type"_s);
    const JetColumn& flags = fieldOf(catalogue, u"Flags"_s);
    QList<JetCatalogueEntry> entries;
    QSet<QString> names;
    QSet<quint32> pages;
    JetRows rows(catalogue);
    while (rows.next()) {
        const QString table = rows.value(name).toString();
        const auto tableFlags = static_cast<quint32>(rows.value(flags).toLongLong());
        if ((rows.value(type).toInt() & TypeMask) != TableType || (tableFlags & SystemFlags) != 0
            || table.startsWith(SystemPrefix, Qt::CaseInsensitive))
            continue;
        const quint32 page = static_cast<quint32>(rows.value(id).toLongLong()) & PageMask;
        if (table.isEmpty() || table.contains(QChar(0)) || names.contains(table.toCaseFolded())
            || pages.contains(page))
            file.failAsDamaged(u"the table \"%1\" has no name or place of its own"_s.arg(table));
        names.insert(table.toCaseFolded());
        pages.insert(page);
        entries.append({table, page});
    }
    return entries;
}

JetCatalogueEntry findJetTable(JetFile& file, const QString& name) {
    for (const JetCatalogueEntry& entry : readJetCatalogue(file)) {
        if (entry.name.compare(name, Qt::CaseInsensitive) == 0)
            return entry;
    }
    throw Error(Error::NotADatabase, u"%1 has no table %2."_s.arg(file.name(), name));
}
