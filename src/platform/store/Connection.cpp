#include "store/Connection.h"

#include "basic/Error.h"
#include "store/RowScan.h"
#include "store/StoreTuning.h"

#include <QDir>
#include <QFileInfo>
#include <QtEndian>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

// No field of a data file comes near this; a damaged one may claim to.
constexpr int LargestField = 64 * 1024 * 1024;

constexpr int FormatVersionOffset = 18;
constexpr int ChangeCounterOffset = 24;
constexpr char RollbackJournalFormat = 1;

int flagsFor(Connection::Access access) {
    switch (access) {
    case Connection::Access::Write:
        return SQLITE_OPEN_READWRITE;
    case Connection::Access::Read:
        return SQLITE_OPEN_READONLY;
    case Connection::Access::Create:
        return SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    }
    Q_UNREACHABLE();
}

QString whatTheCodeMeans(int code, const QString& name) {
    switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return u"The file %1 is in use by another program. Try again in a moment."_s.arg(name);
    case SQLITE_FULL:
        return u"The disk is full: the file %1 could not be written."_s.arg(name);
    case SQLITE_READONLY:
        return u"The file %1 is write-protected or was replaced."_s.arg(name);
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return u"The file %1 is damaged. Put a good copy in its place."_s.arg(name);
    case SQLITE_CANTOPEN:
        return u"The file %1 cannot be opened. Check that you may read and write it."_s.arg(name);
    case SQLITE_CONSTRAINT:
    case SQLITE_MISMATCH:
        return u"The file %1 does not take this value."_s.arg(name);
    default:
        return u"The file %1 cannot be read or written."_s.arg(name);
    }
}

} // namespace

StoreTuning& storeTuning() {
    static StoreTuning tuning;
    return tuning;
}

QString shownPath(const QString& path) {
    return u'"' + QDir::toNativeSeparators(path) + u'"';
}

Connection::Connection(const QString& path, Access access, const QString& shownAs)
    : m_shownName(shownPath(shownAs.isEmpty() ? path : shownAs)) {
    // absolute, so that no name is taken for a URI
    const QByteArray name = QFileInfo(path).absoluteFilePath().toUtf8();
    const int code = sqlite3_open_v2(
        name.constData(), &m_handle, flagsFor(access) | SQLITE_OPEN_NOMUTEX, nullptr);
    if (code != SQLITE_OK) {
        sqlite3_close_v2(m_handle);
        throw Error(Error::StorageFailure, whatTheCodeMeans(code, m_shownName));
    }
    m_isWritable = sqlite3_db_readonly(m_handle, "main") == 0;
    configure();
}

Connection::~Connection() {
    sqlite3_close_v2(m_handle);
}

// Whoever made the file, it is data: nothing in it may run, and nothing in it may grow beyond
// reason.
void Connection::configure() const {
    sqlite3_extended_result_codes(m_handle, 1);
    sqlite3_busy_timeout(m_handle, static_cast<int>(storeTuning().busyTimeout.count()));
    for (const int option :
         {SQLITE_DBCONFIG_TRUSTED_SCHEMA, SQLITE_DBCONFIG_ENABLE_TRIGGER,
          SQLITE_DBCONFIG_ENABLE_VIEW, SQLITE_DBCONFIG_ENABLE_FKEY, SQLITE_DBCONFIG_DQS_DML})
        sqlite3_db_config(m_handle, option, 0, nullptr);
    sqlite3_db_config(m_handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_limit(m_handle, SQLITE_LIMIT_LENGTH, LargestField);
    sqlite3_limit(m_handle, SQLITE_LIMIT_ATTACHED, 0);
    registerRowScan(m_handle);
}

int Connection::tryExecute(const char* statements) const {
    return sqlite3_exec(m_handle, statements, nullptr, nullptr, nullptr);
}

void Connection::execute(const char* statements) const {
    const int code = tryExecute(statements);
    if (code != SQLITE_OK)
        fail(code);
}

void Connection::fail(int code) const {
    throw Error(
        Error::StorageFailure,
        u"%1 (%2)"_s.arg(
            whatTheCodeMeans(code, m_shownName), QString::fromUtf8(sqlite3_errmsg(m_handle))));
}

void Connection::failAsDamaged() const {
    throw Error(Error::StorageFailure, whatTheCodeMeans(SQLITE_CORRUPT, m_shownName));
}

// The engine's own handle of the file: to open the file a second time and close it again would
// release the locks that this process holds on it.
sqlite3_file* Connection::file() const {
    sqlite3_file* opened = nullptr;
    const int code = sqlite3_file_control(m_handle, "main", SQLITE_FCNTL_FILE_POINTER, &opened);
    if (code != SQLITE_OK)
        fail(code);
    return opened;
}

QByteArray Connection::readHead(int size) const {
    sqlite3_file* const opened = file();
    QByteArray head(static_cast<int>(qMin<qint64>(size, fileSize())), '\0');
    const int code = opened->pMethods->xRead(opened, head.data(), static_cast<int>(head.size()), 0);
    if (code != SQLITE_OK && code != SQLITE_IOERR_SHORT_READ)
        fail(code);
    return head;
}

qint64 Connection::fileSize() const {
    sqlite3_file* const opened = file();
    sqlite3_int64 size = 0;
    const int code = opened->pMethods->xFileSize(opened, &size);
    if (code != SQLITE_OK)
        fail(code);
    return size;
}

std::optional<quint32> Connection::changeCounter() const {
    sqlite3_file* const opened = file();
    char bytes[ChangeCounterOffset + 4 - FormatVersionOffset];
    if (opened->pMethods->xRead(opened, bytes, sizeof bytes, FormatVersionOffset) != SQLITE_OK)
        return std::nullopt; // the next read through the engine tells what is wrong
    if (bytes[0] != RollbackJournalFormat)
        return std::nullopt;
    return qFromBigEndian<quint32>(bytes + ChangeCounterOffset - FormatVersionOffset);
}

QString Connection::path() const {
    return QString::fromUtf8(sqlite3_db_filename(m_handle, "main"));
}

bool Connection::isMoved() const {
    int isMoved = 0;
    sqlite3_file_control(m_handle, "main", SQLITE_FCNTL_HAS_MOVED, &isMoved);
    return isMoved != 0;
}

void Connection::syncFile() const {
    sqlite3_file* const opened = file();
    const int code = opened->pMethods->xSync(opened, SQLITE_SYNC_FULL);
    if (code != SQLITE_OK)
        fail(code);
}
