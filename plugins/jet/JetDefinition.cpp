#include "jet/JetDefinition.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

constexpr int NextPageOffset = 4;
constexpr int PageHeadSize = 8;
constexpr int MaximumPages = 64; // 255 columns with long names and 32 indexes take less
constexpr int MaximumColumns = 255;
constexpr int MaximumNameLength = 64;
constexpr int SmallestMap = 5;
constexpr char InlineMap = 0;
constexpr char PagesMap = 1;

} // namespace

JetDefinition::JetDefinition(JetFile& file, quint32 page)
    : m_file(file) {
    readPages(page);
    readCounts();
    checkMaps();
    readNames();
}

void JetDefinition::readPages(quint32 page) {
    QSet<quint32> seen;
    for (quint32 next = page; next != 0 || seen.isEmpty();) {
        const QByteArrayView bytes = m_file.sidePage(next);
        if (bytes[0] != JetDefinitionPage)
            m_file.failAsDamaged(u"page %1 is no part of a definition"_s.arg(next));
        if (seen.contains(next) || seen.size() == MaximumPages)
            m_file.failAsDamaged(u"the pages of its definition have no end"_s);
        m_bytes.append(seen.isEmpty() ? bytes : bytes.sliced(PageHeadSize));
        seen.insert(next);
        next = jetLong(bytes, NextPageOffset);
    }
}

// The counts of the columns that a row has at most, of the variable ones and of all stand in a row.
void JetDefinition::readCounts() {
    const JetLayout& layout = m_file.layout();
    m_rowCount = jetLong(m_bytes, layout.definitionRows);
    m_lastCounter = static_cast<qint32>(jetLong(m_bytes, layout.counter));
    m_largestRow = jetShort(m_bytes, layout.definitionColumns - 4);
    const int variableColumns = jetShort(m_bytes, layout.definitionColumns - 2);
    m_columnCount = jetShort(m_bytes, layout.definitionColumns);
    if (m_columnCount == 0 || m_columnCount > m_largestRow || m_largestRow > MaximumColumns
        || variableColumns > m_largestRow)
        m_file.failAsDamaged(u"its definition claims %1 columns"_s.arg(m_columnCount));
    m_hasVariableColumns = variableColumns > 0;
}

// The maps of the pages that hold its rows, and of those that have room.
void JetDefinition::checkMaps() {
    const int maps = m_file.layout().definitionMaps;
    checkMap(JetPlace::fromPointer(jetLong(m_bytes, maps)));
    checkMap(JetPlace::fromPointer(jetLong(m_bytes, maps + 4)));
}

void JetDefinition::checkMap(JetPlace place) {
    QByteArrayView page = m_file.sidePage(place.page);
    if (page[0] != JetDataPage)
        m_file.failAsDamaged(u"its map of pages is none"_s);
    const JetSlot slot = m_file.slot(page, place.row);
    if (slot.flags != 0 || slot.size < SmallestMap || page[slot.start] > PagesMap
        || page[slot.start] < InlineMap)
        m_file.failAsDamaged(u"its map of pages is none"_s);
    if (page[slot.start] == InlineMap)
        return;
    const QByteArray pointers = page.sliced(slot.start + 1, slot.size - 1).toByteArray();
    for (qsizetype at = 0; at + 4 <= pointers.size(); at += 4) {
        const quint32 pointer = jetLong(pointers, at);
        if (pointer != 0 && m_file.sidePage(pointer)[0] != JetMapPage)
            m_file.failAsDamaged(u"page %1 is no part of its map of pages"_s.arg(pointer));
    }
}

QByteArrayView JetDefinition::part(qsizetype offset, qsizetype size) const {
    if (offset + size > m_bytes.size())
        m_file.failAsDamaged(u"its definition is cut off"_s);
    return QByteArrayView(m_bytes).sliced(offset, size);
}

void JetDefinition::readNames() {
    const JetLayout& layout = m_file.layout();
    const qint64 indexes = jetLong(m_bytes, layout.definitionIndexes);
    const qint64 entries = layout.definitionEnd + indexes * layout.indexEntrySize;
    qint64 at = entries + qint64(m_columnCount) * layout.columnEntrySize;
    QSet<QString> seen;
    for (int column = 0; column < m_columnCount; ++column) {
        const QByteArrayView entry =
            part(entries + qint64(column) * layout.columnEntrySize, layout.columnEntrySize);
        const QByteArrayView sizeBytes = part(at, layout.nameLengthSize);
        const int size = layout.isJet3 ? static_cast<uchar>(sizeBytes[0]) : jetShort(sizeBytes, 0);
        at += layout.nameLengthSize;
        const std::optional<QString> name = m_file.text().decode(part(at, size));
        at += size;
        if (!name || name->isEmpty() || name->size() > MaximumNameLength
            || name->contains(QChar(0)))
            m_file.failAsDamaged(u"one of its columns has no name"_s);
        const int number = jetShort(entry, layout.columnNumber);
        if (seen.contains(name->toCaseFolded()) || m_names.contains(number))
            m_file.failAsDamaged(u"it has the column \"%1\" twice"_s.arg(*name));
        if (number >= m_largestRow)
            m_file.failAsDamaged(u"its column \"%1\" has no place in a row"_s.arg(*name));
        seen.insert(name->toCaseFolded());
        m_names.insert(number, *name);
    }
}
