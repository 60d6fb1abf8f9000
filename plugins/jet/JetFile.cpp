#include "jet/JetFile.h"

#include "basic/Error.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <glib.h>
#include <mdbtools.h>

using namespace Qt::StringLiterals;

namespace {

constexpr JetLayout Jet3{
    .isJet3 = true,
    .pageSize = 2048,
    .rowCount = 8,
    .counter = 16,
    .definitionRows = 12,
    .definitionColumns = 25,
    .definitionIndexes = 31,
    .definitionMaps = 35,
    .definitionEnd = 43,
    .indexEntrySize = 8,
    .columnEntrySize = 18,
    .columnNumber = 1,
    .nameLengthSize = 1,
};

constexpr JetLayout Jet4{
    .isJet3 = false,
    .pageSize = 4096,
    .rowCount = 12,
    .counter = 20,
    .definitionRows = 16,
    .definitionColumns = 45,
    .definitionIndexes = 51,
    .definitionMaps = 55,
    .definitionEnd = 63,
    .indexEntrySize = 12,
    .columnEntrySize = 25,
    .columnNumber = 5,
    .nameLengthSize = 2,
};

constexpr int VersionOffset = 0x14;
constexpr char Jet3Version = 0;
constexpr char Jet4Version = 1;
constexpr char LastVersion = 6;
constexpr int SlotOffsetMask = 0x1fff;
constexpr int SlotFlags = 0xc000;

// What the library would take from the environment is none of the user's wishes here.
void clearEnvironment() {
    for (const char* name : {"MDBICONV", "MDB_JET3_CHARSET", "MDBOPTS", "MDBPATH"})
        qunsetenv(name);
}

[[noreturn]] void refuse(const QString& name, const QString& reason) {
    throw Error(Error::NotADatabase, u"%1 %2"_s.arg(name, reason));
}

// The library says nothing of a version that it does not know, and reads no cut-off head.
char versionOf(const QString& path, const QString& name) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw Error(Error::PathAccess, u"The file %1 cannot be read."_s.arg(path));
    const QByteArray head = file.read(VersionOffset + 1);
    const char version = head.size() > VersionOffset ? head[VersionOffset] : '\0';
    if (version < Jet3Version || version > LastVersion)
        refuse(name, u"is a Jet database of a version that this program does not know."_s);
    const int pageSize = version == Jet3Version ? Jet3.pageSize : Jet4.pageSize;
    if (file.size() < pageSize)
        refuse(name, u"is damaged: it is cut off in its first page."_s);
    return version;
}

} // namespace

struct JetFile::Library {
    MdbHandle* handle;

    explicit Library(const QString& path) {
        clearEnvironment();
        handle = mdb_open(QFile::encodeName(path).constData(), MDB_NOFLAGS);
    }
    ~Library() {
        if (handle)
            mdb_close(handle);
    }
    Q_DISABLE_COPY_MOVE(Library)
};

JetFile::JetFile(const QString& path)
    : m_name(QFileInfo(path).fileName())
    , m_layout(versionOf(path, m_name) == Jet3Version ? &Jet3 : &Jet4) {
    m_library = std::make_unique<Library>(QFileInfo(path).absoluteFilePath());
    if (!m_library->handle)
        refuse(m_name, u"is damaged: its first page cannot be read."_s);
    const MdbFile& file = *m_library->handle->f;
    if (file.jet_version > quint32(Jet4Version) && file.db_key != 0)
        refuse(
            m_name, u"is encrypted. Open it in the program that it is from, take the password "
                    u"away, and try again."_s);
    if (m_layout->isJet3)
        m_text = JetText::ofCodePage(file.code_page, m_name);
    m_pageCount = static_cast<quint32>(QFileInfo(path).size() / m_layout->pageSize);
}

JetFile::~JetFile() = default;

void* JetFile::handle() const {
    return m_library->handle;
}

QString JetFile::readablePart() const {
    return u"table %1, %2 of %3 rows readable"_s.arg(
        m_reading.table, QString::number(m_reading.rowsRead),
        QString::number(m_reading.rows.value_or(0)));
}

void JetFile::failAsDamaged(const QString& what) const {
    if (m_reading.rows)
        refuse(m_name, u"is damaged: %1; %2."_s.arg(readablePart(), what));
    if (!m_reading.table.isEmpty())
        refuse(m_name, u"is damaged: table %1, %2."_s.arg(m_reading.table, what));
    refuse(m_name, u"is damaged: %1."_s.arg(what));
}

void JetFile::failForLackOfRows() const {
    refuse(m_name, u"is damaged: %1."_s.arg(readablePart()));
}

void JetFile::checkNumber(quint32 number) const {
    if (number == 0 || number >= m_pageCount)
        failAsDamaged(u"the file has no page %1"_s.arg(number));
}

QByteArrayView JetFile::page(quint32 number) {
    checkNumber(number);
    MdbHandle* const handle = m_library->handle;
    if (mdb_read_pg(handle, number) != m_layout->pageSize)
        failAsDamaged(u"page %1 cannot be read"_s.arg(number));
    return {handle->pg_buf, m_layout->pageSize};
}

QByteArrayView JetFile::sidePage(quint32 number) {
    checkNumber(number);
    MdbHandle* const handle = m_library->handle;
    if (mdb_read_alt_pg(handle, number) != m_layout->pageSize)
        failAsDamaged(u"page %1 cannot be read"_s.arg(number));
    return {handle->alt_pg_buf, m_layout->pageSize};
}

int JetFile::slotCount(QByteArrayView page) const {
    const int count = jetShort(page, m_layout->rowCount);
    const int room = (m_layout->pageSize - m_layout->rowCount - 2) / 2;
    if (count > room)
        failAsDamaged(u"a page claims %1 rows"_s.arg(count));
    return count;
}

JetSlot JetFile::slot(QByteArrayView page, int row) const {
    const int count = slotCount(page);
    if (row >= count)
        failAsDamaged(u"a pointer leads to a row that is not there"_s);
    const auto offset = [&](int index) {
        return jetShort(page, m_layout->rowCount + 2 + 2 * index);
    };
    const int start = offset(row) & SlotOffsetMask;
    const int end = row == 0 ? m_layout->pageSize : offset(row - 1) & SlotOffsetMask;
    if (start < m_layout->rowCount + 2 + 2 * count || start > end || end > m_layout->pageSize)
        failAsDamaged(u"a row does not lie within its page"_s);
    return {start, end - start, offset(row) & SlotFlags};
}

quint16 jetShort(QByteArrayView bytes, qsizetype offset) {
    return qFromLittleEndian<quint16>(bytes.sliced(offset, 2).data());
}

quint32 jetLong(QByteArrayView bytes, qsizetype offset) {
    return qFromLittleEndian<quint32>(bytes.sliced(offset, 4).data());
}
