// Writes small Jet databases for tests: what the engine of old left behind, as far as it matters to
// a reader.
#pragma once

#include "plugins/jet/JetPages.h"

#include "jet/JetTable.h"

#include <QVariant>

struct JetFieldOutline {
    QString name;
    JetType type;
    int size = 0; // of texts and binaries, in bytes
    bool counter = false;
    int number = -1;  // its place in the Null bits; as listed, if not given
    int ordinal = -1; // its place in the file's own order; as listed, if not given
};

struct JetRowOutline {
    enum Fate { Plain, Moved, Deleted };

    // QString, or QByteArray for bytes as they are; numbers; Null. Fewer values than fields: a row
    // that is older than the others.
    QVariantList values;
    Fate fate = Plain;
    int columns = -1; // that an older row knew of, deleted ones included
};

struct JetTableOutline {
    QString name;
    QList<JetFieldOutline> fields;
    QList<JetRowOutline> rows;
    qint32 lastCounter = 0;
    int claimedRows = -1;    // as many as there are, if not given
    quint32 flags = 0;       // in the catalogue
    bool mapOfPages = false; // a map that lies on pages of its own
};

enum class JetVersion { Jet3 = 0, Jet4 = 1, Ace = 2 };

class JetFixture {
public:
    explicit JetFixture(JetVersion version, quint32 key = 0, int codePage = 1252);

    void add(const JetTableOutline& table);

    // The whole file. Once.
    QByteArray bytes();

    // Where things lie, in the order of the tables added; offsets into the file.
    qsizetype definition(int table) const { return at(m_definitions[table]); }
    QList<qsizetype> dataPages(int table) const;
    QList<qsizetype> longValuePages(int table) const;
    const QList<JetRegion>& regions() const { return m_regions; }
    const JetFormat& format() const { return m_format; }

private:
    struct Layout; // of a table's rows
    int addTable(const JetTableOutline& table, int index, int definitionPage);
    QByteArray
    rowBytes(const Layout& layout, const JetRowOutline& outline, JetRowPages& longValues, int row);
    QByteArray fieldBytes(
        const JetFieldOutline& field, const QVariant& value, JetRowPages& longValues, int row);
    QByteArray longValue(const QByteArray& value, JetRowPages& longValues, int row);
    QByteArray textBytes(const QVariant& value) const;
    QByteArray definitionBytes(const Layout& layout, quint32 mapPage, qsizetype rows) const;
    int addMaps(const QList<int>& pages, bool onPages);
    QByteArray mapOnPages(const QList<int>& pages);
    void putDefinition(const QByteArray& bytes, int page, int table);
    void putHead(quint32 key, int codePage);
    void addCatalogue();
    qsizetype at(int page) const { return qsizetype(page) * m_format.pageSize; }

    JetVersion m_version;
    quint32 m_key;
    int m_codePage;
    JetFormat m_format;
    JetPages m_pages;
    QList<JetTableOutline> m_tables;
    QList<int> m_definitions;
    QList<QList<int>> m_dataPages;
    QList<QList<int>> m_longValuePages;
    QList<JetRegion> m_regions;
};
