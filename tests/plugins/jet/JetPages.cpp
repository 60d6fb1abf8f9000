#include "plugins/jet/JetPages.h"

QByteArray shortBytes(int value) {
    return QByteArray().append(char(value)).append(char(value >> 8));
}

QByteArray longBytes(quint32 value) {
    return shortBytes(static_cast<int>(value & 0xffff)) + shortBytes(static_cast<int>(value >> 16));
}

void putShort(QByteArray& bytes, int value) {
    bytes += shortBytes(value);
}

void putLong(QByteArray& bytes, quint32 value) {
    bytes += longBytes(value);
}

int JetPages::add() {
    m_pages.append(QByteArray(m_format.pageSize, '\0'));
    return count() - 1;
}

void JetRowPages::begin() {
    const int number = m_pages.add();
    m_numbers.append(number);
    m_pages[number].replace(0, 2, QByteArray("\1\1", 2)).replace(4, 4, m_owner);
    m_rows = 0;
    m_end = m_pages.format().pageSize;
}

int JetRowPages::room() const {
    return m_pages.format().pageSize - m_pages.format().rowCount - 4;
}

quint32 JetRowPages::add(const QByteArray& bytes, int flags, int row) {
    const int slots = m_pages.format().rowCount + 2;
    if (m_numbers.isEmpty() || m_rows == 255 || m_end - bytes.size() < slots + 2 * (m_rows + 1))
        begin();
    const int number = m_numbers.last();
    m_end -= static_cast<int>(bytes.size());
    QByteArray& page = m_pages[number];
    page.replace(m_end, bytes.size(), bytes);
    page.replace(slots + 2 * m_rows, 2, shortBytes(m_end | flags));
    page.replace(slots - 2, 2, shortBytes(m_rows + 1));
    page.replace(2, 2, shortBytes(m_end - slots - 2 * (m_rows + 1)));
    const qsizetype offset = qsizetype(number) * m_pages.format().pageSize;
    m_regions.append({offset + m_end, bytes.size(), m_table, row});
    m_regions.append({offset + slots + 2 * m_rows, 2, m_table, row});
    if (m_rows > 0) // a row ends where the one before it begins
        m_regions.append({offset + slots + 2 * (m_rows - 1), 2, m_table, row});
    return static_cast<quint32>(number << 8 | m_rows++);
}
