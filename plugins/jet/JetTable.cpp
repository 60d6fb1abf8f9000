#include "jet/JetTable.h"

#include <algorithm>
#include <array>

#include <glib.h>
#include <mdbtools.h>

using namespace Qt::StringLiterals;

struct JetTable::Library {
    MdbHandle* handle;
    MdbCatalogEntry entry{}; // zeroed: the library would look for properties and follow them
    MdbTableDef* table = nullptr;
    std::array<MdbField, MDB_MAX_COLS> fields{};

    Library(void* file, quint32 page)
        : handle(static_cast<MdbHandle*>(file)) {
        entry.mdb = handle;
        entry.object_type = MDB_TABLE;
        entry.table_pg = page;
        table = mdb_read_table(&entry);
        if (table)
            mdb_read_columns(table);
    }
    ~Library() {
        if (table)
            mdb_free_tabledef(table);
    }
    Q_DISABLE_COPY_MOVE(Library)

    const MdbColumn& column(int place) const {
        return *static_cast<const MdbColumn*>(g_ptr_array_index(table->columns, place));
    }
};

namespace {

bool isKnownType(int type) {
    static constexpr JetType known[] = {
        JetType::Bool,    JetType::Byte,       JetType::Integer, JetType::Long,    JetType::Money,
        JetType::Single,  JetType::Double,     JetType::Date,    JetType::Binary,  JetType::Text,
        JetType::Ole,     JetType::Memo,       JetType::Guid,    JetType::Numeric, JetType::Bytes,
        JetType::Complex, JetType::BigInteger,
    };
    return std::ranges::find(known, static_cast<JetType>(type)) != std::end(known);
}

} // namespace

JetTable::JetTable(JetFile& file, quint32 page, const QString& name)
    : m_file(file)
    , m_name(name)
    , m_page(page) {
    file.beginTable(name);
    m_definition = std::make_unique<JetDefinition>(file, page);
    m_library = std::make_unique<Library>(file.handle(), page);
    if (!m_library->table || !m_library->table->columns
        || m_library->table->columns->len != static_cast<guint>(m_definition->columnCount()))
        file.failAsDamaged(u"its definition cannot be read"_s);
    readColumns();
}

JetTable::~JetTable() = default;

// The library gives the columns by their number; the file's own order is that of the ordinals.
void JetTable::readColumns() {
    std::vector<std::pair<int, JetColumn>> byOrdinal;
    for (int place = 0; place < m_definition->columnCount(); ++place) {
        const MdbColumn& column = m_library->column(place);
        const QString name = m_definition->names().value(column.col_num);
        if (name.isEmpty() || !isKnownType(column.col_type))
            m_file.failAsDamaged(u"its column \"%1\" is of an unknown kind (%2)"_s.arg(
                name, QString::number(column.col_type)));
        const bool isCounter = column.is_long_auto && column.col_type == MDB_LONGINT;
        byOrdinal.emplace_back(
            column.row_col_num, JetColumn{
                                    name, static_cast<JetType>(column.col_type), isCounter,
                                    column.col_scale, column.col_num, place});
    }
    std::ranges::sort(byOrdinal, [](const auto& left, const auto& right) {
        return std::tie(left.first, left.second.name) < std::tie(right.first, right.second.name);
    });
    for (auto& entry : byOrdinal)
        m_columns.push_back(std::move(entry.second));
    m_parts.resize(m_columns.size());
}

const JetColumn* JetTable::columnNamed(const QString& name) const {
    const auto found = std::ranges::find_if(m_columns, [&](const JetColumn& column) {
        return column.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == m_columns.end() ? nullptr : &*found;
}

quint32 JetTable::nextPage(quint32 page) {
    const MdbTableDef& table = *m_library->table;
    const auto mapSize = static_cast<unsigned>(table.map_sz);
    const gint32 next = mdb_map_find_next(m_library->handle, table.usage_map, mapSize, page);
    if (next == 0)
        return 0;
    if (next < 0 || static_cast<quint32>(next) <= page)
        m_file.failAsDamaged(u"its map of pages leads astray"_s);
    return static_cast<quint32>(next);
}

// What stands behind a row's values: the offsets of the variable ones, their count, the Null bits.
int JetTable::tailSize(QByteArrayView row) const {
    const bool isJet3 = m_file.layout().isJet3;
    const int size = static_cast<int>(row.size());
    const int columns = isJet3 ? static_cast<uchar>(row[0]) : jetShort(row, 0);
    const int nullBits = (columns + 7) / 8;
    if (!m_definition->hasVariableColumns())
        return nullBits;
    const int countSize = isJet3 ? 1 : 2;
    if (nullBits + countSize > size)
        return size;
    const int countOffset = size - nullBits - countSize;
    const int variable = isJet3 ? static_cast<uchar>(row[countOffset]) : jetShort(row, countOffset);
    if (variable > columns)
        return size;
    const int jumps = isJet3 ? (size - 1) / 256 : 0;
    return nullBits + countSize + jumps + (variable + 1) * countSize;
}

void JetTable::checkRow(QByteArrayView row) const {
    const bool isJet3 = m_file.layout().isJet3;
    const int headSize = isJet3 ? 1 : 2;
    if (row.size() <= headSize)
        m_file.failAsDamaged(u"a row is cut off"_s);
    const int columns = isJet3 ? static_cast<uchar>(row[0]) : jetShort(row, 0);
    if (columns == 0 || columns > m_definition->largestRow())
        m_file.failAsDamaged(u"a row claims %1 columns"_s.arg(columns));
    if (headSize + tailSize(row) > row.size())
        m_file.failAsDamaged(u"a row is cut off"_s);
}

void JetTable::splitRow(const JetSlot& row) {
    const auto* const page = reinterpret_cast<const char*>(m_library->handle->pg_buf);
    const QByteArrayView bytes(page + row.start, row.size);
    checkRow(bytes);
    const int columns = mdb_crack_row(
        m_library->table, row.start, static_cast<size_t>(row.size), m_library->fields.data());
    if (columns <= 0)
        m_file.failAsDamaged(u"a row does not fit together"_s);
    const int dataStart = row.start + (m_file.layout().isJet3 ? 1 : 2);
    const int dataEnd = row.start + row.size - tailSize(bytes);
    for (const JetColumn& column : m_columns) {
        const auto place = static_cast<size_t>(column.place);
        const MdbField& field = m_library->fields[place];
        // a row that is older than a column says nothing of it
        const bool isNull = field.is_null || column.number >= columns;
        m_parts[place] = {isNull, {}};
        if (isNull || column.type == JetType::Bool)
            continue;
        if (field.siz < 0 || field.start < dataStart || field.start + field.siz > dataEnd)
            m_file.failAsDamaged(u"a row does not fit together"_s);
        m_parts[place].bytes = QByteArrayView(page + field.start, field.siz);
    }
}
