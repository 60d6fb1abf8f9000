// The pages of a Jet file in the making.
#pragma once

#include <QByteArray>
#include <QList>

// What the formats differ in.
struct JetFormat {
    bool isJet3;
    int pageSize;
    int rowCount; // offset of the count of rows in a data page
};

inline constexpr JetFormat Jet3Format{true, 2048, 8};
inline constexpr JetFormat Jet4Format{false, 4096, 12};

// Bytes of the file that a row depends on. Row -1 stands for all rows of its table, table -1 for
// the catalogue.
struct JetRegion {
    qsizetype offset;
    qsizetype size;
    int table;
    int row;
};

void putShort(QByteArray& bytes, int value);
void putLong(QByteArray& bytes, quint32 value);
QByteArray shortBytes(int value);
QByteArray longBytes(quint32 value);

class JetPages {
public:
    explicit JetPages(const JetFormat& format)
        : m_format(format) {}

    const JetFormat& format() const { return m_format; }

    // A new page of zeros; its number.
    int add();
    QByteArray& operator[](int page) { return m_pages[page]; }
    int count() const { return static_cast<int>(m_pages.size()); }

private:
    JetFormat m_format;
    QList<QByteArray> m_pages;
};

// Fills data pages with rows, each as long as there is room.
class JetRowPages {
public:
    static constexpr int Pointer = 0x4000;
    static constexpr int Hidden = 0x8000;
    static constexpr int Deleted = 0xc000;

    JetRowPages(JetPages& pages, const QByteArray& owner, int table)
        : m_pages(pages)
        , m_owner(owner)
        , m_table(table) {}

    // Adds the row, which belongs to `row` of the table; the pointer to its place.
    quint32 add(const QByteArray& bytes, int flags, int row);

    // The most that a row takes.
    int room() const;

    // Its pages, and what belongs to which row.
    const QList<int>& pages() const { return m_numbers; }
    const QList<JetRegion>& regions() const { return m_regions; }

private:
    void begin();

    JetPages& m_pages;
    QByteArray m_owner;
    int m_table;
    QList<int> m_numbers;
    QList<JetRegion> m_regions;
    int m_rows = 0; // of the last page
    int m_end = 0;  // of its free part
};
