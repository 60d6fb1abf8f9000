#include "plugins/jet/TrueRows.h"

#include "plugins/jet/JetTest.h"

#include <QDataStream>
#include <QIODevice>
#include <algorithm>

namespace {

constexpr int Catalogue = -1;
constexpr int AllRows = -1;
constexpr qsizetype CodePageOffset = 0x3c;

bool overlap(const JetRegion& region, const ChangedBytes& change) {
    return region.offset < change.offset + change.size
           && change.offset < region.offset + region.size;
}

} // namespace

TrueRows::TrueRows(const JetFixture& fixture, const QStringList& tables, const QString& path)
    : m_regions(fixture.regions())
    , m_isJet3(fixture.format().isJet3)
    , m_tables(tables) {
    for (const QString& table : tables)
        m_rows.append(readRows(path, table));
}

TrueRows::Rows TrueRows::readRows(const QString& path, const QString& table) {
    Rows rows;
    for (const QVariantList& row : rowsOf(path, table)) {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream << row;
        ++rows[bytes];
    }
    return rows;
}

// How many of the rows are not among the allowed ones.
qsizetype TrueRows::surplus(const Rows& rows, const Rows& allowed) {
    qsizetype count = 0;
    for (auto row = rows.begin(); row != rows.end(); ++row)
        count += std::max(0, row.value() - allowed.value(row.key()));
    return count;
}

TrueRows::Hits TrueRows::hits(const QList<ChangedBytes>& changes) const {
    Hits hits;
    const JetRegion codePage{CodePageOffset, 2, 0, 0};
    for (const ChangedBytes& change : changes) {
        hits.all = hits.all || (m_isJet3 && overlap(codePage, change));
        for (const JetRegion& region : m_regions) {
            if (!overlap(region, change))
                continue;
            hits.catalogue = hits.catalogue || region.table == Catalogue;
            hits.rows[region.table].insert(region.row);
        }
    }
    return hits;
}

QString TrueRows::fault(const QString& path, const QList<ChangedBytes>& changes) const {
    const Hits hit = hits(changes);
    for (int table = 0; table < m_tables.size(); ++table) {
        const QSet<int> rowsHit = hit.rows.value(table);
        if (hit.all || rowsHit.contains(AllRows))
            continue;
        Rows rows;
        const QString error = errorTextOf([&] { rows = readRows(path, m_tables[table]); });
        if (!error.isEmpty()) {
            if (hit.catalogue) // which may have lost the table's name
                continue;
            return error;
        }
        const qsizetype foreign = surplus(rows, m_rows[table]);
        const qsizetype missing = surplus(m_rows[table], rows);
        if (foreign > rowsHit.size() || missing > rowsHit.size())
            return u"table %1: %2 foreign rows, %3 missing, where %4 were hit"_s.arg(
                m_tables[table], QString::number(foreign), QString::number(missing),
                QString::number(rowsHit.size()));
    }
    return {};
}

bool TrueRows::isUnchanged(const QString& path) const {
    bool isUnchanged = true;
    for (int table = 0; table < m_tables.size(); ++table) {
        const bool isRead = attempt(
            [&] { isUnchanged = isUnchanged && readRows(path, m_tables[table]) == m_rows[table]; });
        isUnchanged = isUnchanged && isRead;
    }
    return isUnchanged;
}
