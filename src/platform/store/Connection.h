// One open file of the engine. Constructed means open; nothing has been read yet.
//
// A connection belongs to one thread. It holds no lock of the file between operations, so that
// other connections, in this program and in others, can write at any time.
#pragma once

#include <QString>
#include <optional>

struct sqlite3;
struct sqlite3_file;

class Connection {
public:
    enum class Access { Write, Read, Create };

    // Messages name the file as `shownAs`, if given. Error::StorageFailure when the file cannot be
    // opened or made.
    Connection(const QString& path, Access access, const QString& shownAs = {});
    ~Connection();
    Q_DISABLE_COPY_MOVE(Connection)

    sqlite3* handle() const { return m_handle; }

    // The file's name as messages show it.
    const QString& shownName() const { return m_shownName; }

    // Where the engine has the file: absolute, and of the host.
    QString path() const;
    bool isWritable() const { return m_isWritable; }
    void setReadOnly() { m_isWritable = false; }

    // Runs statements without results; the engine's result code, or Error::StorageFailure.
    int tryExecute(const char* statements) const;
    void execute(const char* statements) const;

    // Throws Error::StorageFailure that says what the result code means, with the engine's text.
    [[noreturn]] void fail(int code) const;
    [[noreturn]] void failAsDamaged() const;

    // The head of the file, as much of it as there is, and the file's size; without any lock.
    QByteArray readHead(int size) const;
    qint64 fileSize() const;

    // The number that every committed write of any program changes; without any lock. No value
    // when the file is in a state in which the number does not tell.
    std::optional<quint32> changeCounter() const;

    // Whether another file, or none, stands at the path by now.
    bool isMoved() const;

    // Waits until the disk has the file.
    void syncFile() const;

private:
    sqlite3_file* file() const;
    void configure() const;

    QString m_shownName;
    sqlite3* m_handle = nullptr;
    bool m_isWritable = false;
};

// The path as messages show it.
QString shownPath(const QString& path);
