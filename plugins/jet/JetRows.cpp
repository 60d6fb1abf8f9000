#include "jet/JetRows.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int OwnerOffset = 4;
constexpr int PointerSize = 4;

} // namespace

JetRows::JetRows(JetTable& table)
    : m_table(table)
    , m_file(table.file()) {
    m_file.beginTable(table.name());
    m_file.beginRows(table.definition().rowCount());
}

QByteArrayView JetRows::dataPage(quint32 number) {
    const QByteArrayView page = m_file.page(number);
    if (page[0] != JetDataPage || jetLong(page, OwnerOffset) != m_table.page())
        m_file.failAsDamaged(u"page %1 is none of this table"_s.arg(number));
    return page;
}

bool JetRows::nextPage() {
    m_page = m_table.nextPage(m_page);
    if (m_page == 0)
        return false;
    m_slot = 0;
    m_slots = m_file.slotCount(dataPage(m_page));
    return true;
}

bool JetRows::next() {
    for (;;) {
        while (m_slot == m_slots) {
            if (!nextPage()) {
                if (m_count < m_table.definition().rowCount())
                    m_file.failForLackOfRows();
                return false;
            }
        }
        const JetSlot slot = m_file.slot(dataPage(m_page), m_slot++);
        if ((slot.flags & JetSlot::IsHidden) == 0) {
            split(slot);
            ++m_count;
            return true;
        }
    }
}

// A row that has moved stands where it stood; a pointer leads to what is now its content.
void JetRows::split(JetSlot slot) {
    if (slot.flags == JetSlot::IsPointer) {
        const QByteArrayView page = dataPage(m_page);
        if (slot.size < PointerSize)
            m_file.failAsDamaged(u"a pointer to a row is cut off"_s);
        const JetPlace place = JetPlace::fromPointer(jetLong(page, slot.start));
        slot = m_file.slot(dataPage(place.page), place.row);
        if (slot.flags != JetSlot::IsHidden)
            m_file.failAsDamaged(u"a pointer leads to a row of its own"_s);
    }
    m_table.splitRow(slot);
    m_file.countRow();
}

QVariant JetRows::value(const JetColumn& column) const {
    return jetValue(m_file, column, m_table.part(column));
}

QVariantList JetRows::values() const {
    QVariantList values;
    values.reserve(static_cast<qsizetype>(m_table.columns().size()));
    for (const JetColumn& column : m_table.columns())
        values.append(value(column));
    return values;
}
