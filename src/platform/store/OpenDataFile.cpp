#include "store/OpenDataFile.h"

#include "basic/Error.h"
#include "store/DataFile.h"
#include "store/JetConverter.h"
#include "store/Statement.h"
#include "store/StoreTuning.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

// The parts of the file's head that tell what it is.
constexpr int HeadSize = 100;
constexpr QByteArrayView Signature("SQLite format 3\0", 16);
constexpr int PageSizeOffset = 16;
constexpr int ChangeCounterOffset = 24;
constexpr int PageCountOffset = 28;
constexpr int TextEncodingOffset = 56;
constexpr quint32 Utf8Encoding = 1;
constexpr int ApplicationIdOffset = 68;
constexpr int PageCountValidForOffset = 92;

// More than any schema of ours takes to be read, and soon over.
constexpr int MaximumOpeningSteps = 1000000;

[[noreturn]] void refuse(const QString& name, const QString& reason) {
    throw Error(Error::NotADatabase, u"The file %1 %2"_s.arg(name, reason));
}

void checkPath(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists())
        throw Error(Error::FileNotFound, u"The file %1 does not exist."_s.arg(shownPath(path)));
    if (!info.isFile())
        refuse(shownPath(path), u"is a folder or a device, and no data file."_s);
    if (info.size() == 0)
        refuse(shownPath(path), u"is empty. Put a complete copy in its place."_s);
}

quint32 numberAt(const QByteArray& head, int offset) {
    return qFromBigEndian<quint32>(head.constData() + offset);
}

// Before the engine has the file open: it would go on with the file that the converter replaces.
QString pathAfterConversion(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !isJetHead(file.read(HeadSize)))
        return path;
    file.close();
    if (!jetConverter())
        refuse(
            shownPath(path), u"is a Jet database. It has to be converted before it is opened."_s);
    return jetConverter()(path);
}

void checkHead(const Connection& connection) {
    const QByteArray head = connection.readHead(HeadSize);
    if (!head.startsWith(Signature))
        refuse(connection.shownName(), u"is not a data file of Lumenvia."_s);
    if (head.size() < HeadSize)
        refuse(connection.shownName(), u"is cut off. Put a complete copy in its place."_s);
    if (numberAt(head, ApplicationIdOffset) != quint32(DataFileApplicationId))
        refuse(connection.shownName(), u"is a database of another program."_s);
    if (numberAt(head, TextEncodingOffset) > Utf8Encoding)
        refuse(connection.shownName(), u"keeps its texts in an encoding that is not ours."_s);
}

// How many bytes the file should have by what its head says; 0 if that does not hold for sure.
qint64 expectedSize(const QByteArray& head) {
    if (numberAt(head, ChangeCounterOffset) != numberAt(head, PageCountValidForOffset))
        return 0;
    const auto pageSize = qFromBigEndian<quint16>(head.constData() + PageSizeOffset);
    return qint64(numberAt(head, PageCountOffset)) * (pageSize == 1 ? 65536 : pageSize);
}

void checkSize(const Connection& connection) {
    if (connection.fileSize() < expectedSize(connection.readHead(HeadSize)))
        refuse(connection.shownName(), u"is cut off. Put a complete copy in its place."_s);
}

[[noreturn]] void refuseUnreadable(const Connection& connection, int code) {
    const int kind = code & 0xff;
    if (kind != SQLITE_CORRUPT && kind != SQLITE_NOTADB && kind != SQLITE_ERROR
        && kind != SQLITE_INTERRUPT)
        connection.fail(code);
    checkSize(connection);
    refuse(
        connection.shownName(), u"is damaged (%1). Put a good copy in its place."_s.arg(
                                    QString::fromUtf8(sqlite3_errmsg(connection.handle()))));
}

// The first read of the file by the engine, which also undoes what a program that died had begun.
// A schema made to keep the reader busy for ever is given up.
void readSchema(const Connection& connection) {
    const ReadTransaction transaction(connection); // nobody writes until the size is checked
    const auto giveUp = [](void*) { return 1; };
    sqlite3_progress_handler(connection.handle(), MaximumOpeningSteps, giveUp, nullptr);
    const int code = connection.tryExecute("SELECT count(*) FROM sqlite_schema WHERE name = ''");
    sqlite3_progress_handler(connection.handle(), 0, nullptr, nullptr);
    if (code != SQLITE_OK)
        refuseUnreadable(connection, code);
    checkSize(connection);
}

// EXTRA, so that Update returns only when the disk also knows that the journal is gone: with a
// journal left in the folder after a loss of power the write would be undone.
constexpr char DurableWrites[] = "PRAGMA synchronous = EXTRA; PRAGMA fullfsync = ON";
constexpr char HastyWrites[] = "PRAGMA synchronous = OFF";
constexpr char RollbackJournal[] = "PRAGMA journal_mode = DELETE";

// Room for 64 MB of pages, so that also a large work is read from the disk once.
constexpr char Reading[] = "PRAGMA cell_size_check = ON; PRAGMA cache_size = -65536";

bool folderIsWritable(const QString& path) {
    return QFileInfo(QFileInfo(path).absolutePath()).isWritable();
}

} // namespace

std::shared_ptr<Connection> openDataFile(const QString& givenPath, bool readOnly) {
    checkPath(givenPath);
    const QString path = pathAfterConversion(givenPath);
    const bool isElsewhere = path != givenPath;
    auto connection = std::make_shared<Connection>(
        path, readOnly || isElsewhere ? Connection::Access::Read : Connection::Access::Write);
    checkHead(*connection);
    readSchema(*connection);
    connection->execute(Reading);
    if (!folderIsWritable(path)) // there is no place for the journal
        connection->setReadOnly();
    if (connection->isWritable()) {
        connection->execute(RollbackJournal);
        connection->execute(storeTuning().flushToDisk ? DurableWrites : HastyWrites);
    }
    return connection;
}
