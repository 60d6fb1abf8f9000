#include "plugins/jet/JetFixtureLayout.h"

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr int Catalogue = -1;

// The cipher by which pages are encoded and the head of every file is masked.
QByteArray encoded(QByteArray bytes, qsizetype offset, qsizetype size, quint32 key) {
    uchar box[256];
    std::iota(std::begin(box), std::end(box), uchar(0));
    const QByteArray keyBytes = longBytes(key);
    for (int index = 0, other = 0; index < 256; ++index) {
        other = (other + box[index] + uchar(keyBytes[index % 4])) & 0xff;
        std::swap(box[index], box[other]);
    }
    for (int index = 0, one = 0, other = 0; index < size; ++index) {
        one = (one + 1) & 0xff;
        other = (other + box[one]) & 0xff;
        std::swap(box[one], box[other]);
        const uchar mask = box[(box[one] + box[other]) & 0xff];
        bytes[offset + index] = char(uchar(bytes[offset + index]) ^ mask);
    }
    return bytes;
}

} // namespace

JetFixture::JetFixture(JetVersion version, quint32 key, int codePage)
    : m_version(version)
    , m_key(key)
    , m_codePage(codePage)
    , m_format(version == JetVersion::Jet3 ? Jet3Format : Jet4Format)
    , m_pages(m_format) {
    for (int page = 0; page < 3; ++page) // head, global map, definition of the catalogue
        m_pages.add();
    m_pages[1].replace(0, 2, QByteArray("\1\1", 2));
}

void JetFixture::add(const JetTableOutline& table) {
    m_tables.append(table);
    m_definitions.append(m_pages.add());
    m_dataPages.emplaceBack();
    m_longValuePages.emplaceBack();
    addTable(table, static_cast<int>(m_tables.size()) - 1, m_definitions.last());
}

int JetFixture::addTable(const JetTableOutline& table, int index, int definitionPage) {
    const Layout layout(table);
    JetRowPages rows(m_pages, longBytes(static_cast<quint32>(definitionPage)), index);
    JetRowPages moved(m_pages, longBytes(static_cast<quint32>(definitionPage)), index);
    JetRowPages longValues(m_pages, "LVAL", index);
    qsizetype count = 0;
    for (int row = 0; row < table.rows.size(); ++row) {
        const JetRowOutline& outline = table.rows[row];
        const QByteArray bytes = rowBytes(layout, outline, longValues, row);
        if (outline.fate == JetRowOutline::Moved)
            rows.add(
                longBytes(moved.add(bytes, JetRowPages::Hidden, row)), JetRowPages::Pointer, row);
        else
            rows.add(bytes, outline.fate == JetRowOutline::Deleted ? JetRowPages::Deleted : 0, row);
        count += outline.fate == JetRowOutline::Deleted ? 0 : 1;
    }
    QList<int> pages = rows.pages() + moved.pages();
    std::ranges::sort(pages);
    const int mapPage = addMaps(pages, table.mapOfPages);
    const qsizetype claimed = table.claimedRows < 0 ? count : table.claimedRows;
    putDefinition(
        definitionBytes(layout, static_cast<quint32>(mapPage), claimed), definitionPage, index);
    m_regions += rows.regions() + moved.regions() + longValues.regions();
    if (index != Catalogue) {
        m_dataPages[index] = pages;
        m_longValuePages[index] = longValues.pages();
    }
    return definitionPage;
}

QByteArray
JetFixture::definitionBytes(const Layout& layout, quint32 mapPage, qsizetype rows) const {
    const bool isJet3 = m_format.isJet3;
    QByteArray bytes("\2\1\0\0\0\0\0\0", 8);
    putLong(bytes, 0); // its own length, which nobody reads
    if (!isJet3)
        putLong(bytes, 0);
    putLong(bytes, static_cast<quint32>(rows));
    putLong(bytes, static_cast<quint32>(layout.table.lastCounter));
    bytes += isJet3 ? QByteArray() : QByteArray(16, '\0');
    bytes += 'N';
    putShort(bytes, layout.columns());
    putShort(bytes, layout.variableFields);
    putShort(bytes, static_cast<int>(layout.places.size()));
    putLong(bytes, 0); // indexes
    putLong(bytes, 0);
    putLong(bytes, mapPage << 8);
    putLong(bytes, mapPage << 8 | 1);
    for (const Layout::Place& place : layout.places) {
        const JetFieldOutline& field = place.field;
        const int size = isFixed(field) ? fixedSize(field.type) : field.size;
        const char flags = char((isFixed(field) ? 1 : 0) | 2 | (field.counter ? 4 : 0));
        const int fixedOffset = isFixed(field) ? place.offset : 0;
        const int variableIndex = isFixed(field) ? 0 : place.offset;
        bytes += char(field.type);
        bytes += isJet3 ? QByteArray() : QByteArray(4, '\0');
        bytes += shortBytes(field.number) + shortBytes(variableIndex) + shortBytes(field.ordinal);
        bytes += isJet3 ? QByteArray(6, '\0') : QByteArray(4, '\0');
        bytes += flags;
        bytes += isJet3 ? QByteArray() : QByteArray(5, '\0');
        bytes += shortBytes(fixedOffset) + shortBytes(size);
    }
    for (const Layout::Place& place : layout.places) {
        const QByteArray name = textBytes(place.field.name);
        bytes += isJet3 ? QByteArray(1, char(name.size())) : shortBytes(int(name.size()));
        bytes += name;
    }
    return bytes;
}

void JetFixture::putDefinition(const QByteArray& bytes, int page, int table) {
    const int pageSize = m_format.pageSize;
    m_pages[page].replace(0, qMin<qsizetype>(bytes.size(), pageSize), bytes.left(pageSize));
    m_regions.append({at(page), pageSize, table, -1});
    int last = page;
    for (qsizetype done = pageSize; done < bytes.size(); done += pageSize - 8) {
        const int next = m_pages.add();
        const QByteArray part = bytes.mid(done, pageSize - 8);
        m_pages[next].replace(0, 2, QByteArray("\2\1", 2)).replace(8, part.size(), part);
        m_pages[last].replace(4, 4, longBytes(static_cast<quint32>(next)));
        m_regions.append({at(next), pageSize, table, -1});
        last = next;
    }
}

// The map of the table's pages, and an empty one of those with room.
int JetFixture::addMaps(const QList<int>& pages, bool onPages) {
    const int bitBytes = m_format.isJet3 ? 128 : 64;
    const int first = pages.isEmpty() ? 0 : pages.first();
    QByteArray map = QByteArray(1, '\0') + longBytes(static_cast<quint32>(first));
    QByteArray bits(bitBytes, '\0');
    if (onPages || (!pages.isEmpty() && pages.last() - first >= 8 * bitBytes)) {
        map = mapOnPages(pages);
    } else {
        for (const int page : pages)
            bits[(page - first) / 8] = char(bits[(page - first) / 8] | 1 << (page - first) % 8);
        map += bits;
    }
    JetRowPages maps(m_pages, longBytes(0), -2);
    maps.add(map, 0, 0);
    maps.add(QByteArray(5 + bitBytes, '\0'), 0, 0);
    return maps.pages().first();
}

QByteArray JetFixture::mapOnPages(const QList<int>& pages) {
    const int bitsOfPage = 8 * (m_format.pageSize - 4);
    QByteArray map(1, '\1');
    for (int from = 0; from <= pages.value(pages.size() - 1); from += bitsOfPage) {
        const int number = m_pages.add();
        m_pages[number].replace(0, 2, QByteArray("\5\1", 2));
        for (const int page : pages) {
            const int bit = page - from;
            if (bit >= 0 && bit < bitsOfPage)
                m_pages[number][4 + bit / 8] = char(m_pages[number][4 + bit / 8] | 1 << bit % 8);
        }
        putLong(map, static_cast<quint32>(number));
    }
    return map + QByteArray(8, '\0');
}

void JetFixture::addCatalogue() {
    JetTableOutline catalogue{
        u"MSysObjects"_s,
        {{u"Id"_s, JetType::Long},
         {u"ParentId"_s, JetType::Long},
         {u"Name"_s, JetType::Text, 128},
         {u"Type"_s, JetType::Integer},
         {u"Flags"_s, JetType::Long},
         {u"LvProp"_s, JetType::Ole}},
        {}};
    const auto addObject = [&](int id, const QString& name, int type, quint32 flags) {
        catalogue.rows.append({{id, 1, name, type, qint32(flags), QByteArray("MR2\0", 4)}});
    };
    addObject(2, u"MSysObjects"_s, 1, 0x80000000);
    addObject(0x0f000001, u"Tables"_s, 3, 0x80000000);
    addObject(9999, u"A query"_s, 5, 0);
    for (int table = 0; table < m_tables.size(); ++table)
        addObject(m_definitions[table], m_tables[table].name, 1, m_tables[table].flags);
    addTable(catalogue, Catalogue, 2);
}

void JetFixture::putHead(quint32 key, int codePage) {
    QByteArray& head = m_pages[0];
    const char* const name = m_version == JetVersion::Ace ? "Standard ACE DB" : "Standard Jet DB";
    head.replace(0, 4, QByteArray("\0\1\0\0", 4)).replace(4, 15, name);
    head[0x14] = char(m_version);
    head.replace(0x3c, 2, shortBytes(codePage)).replace(0x3e, 4, longBytes(key));
    head = encoded(head, 0x18, m_format.isJet3 ? 126 : 128, 0x6b39dac7);
}

QByteArray JetFixture::bytes() {
    addCatalogue();
    putHead(m_key, m_codePage);
    QByteArray file;
    for (int page = 0; page < m_pages.count(); ++page) {
        const auto number = static_cast<quint32>(page);
        file += page == 0 || m_key == 0
                    ? m_pages[page]
                    : encoded(m_pages[page], 0, m_format.pageSize, m_key ^ number);
    }
    return file;
}

QList<qsizetype> JetFixture::dataPages(int table) const {
    QList<qsizetype> offsets;
    for (const int page : m_dataPages[table])
        offsets.append(at(page));
    return offsets;
}

QList<qsizetype> JetFixture::longValuePages(int table) const {
    QList<qsizetype> offsets;
    for (const int page : m_longValuePages[table])
        offsets.append(at(page));
    return offsets;
}
