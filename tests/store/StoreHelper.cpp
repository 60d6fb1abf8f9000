// Another program that uses the same files: what the tests start beside themselves.
//
//   count FILE            writes 1, 2, 3, ... as the note of row 1 and reports each finished Update
//   add FILE WHO COUNT    adds rows with the numbers WHO * 1000000 + i, and reports each
//   fill FILE FIELD COUNT writes 1 ... COUNT into a field of the rows 1 ... COUNT
//   lock FILE [TIME]      holds the file as a program does that is writing, until its input ends or
//                         for so many milliseconds
//   note FILE TEXT        begins to edit row 1, and writes its note when the input ends
//   look FILE             as a user without rights: opens, reads, tries to write, reports
#include "basic/Error.h"
#include "store/StoreTuning.h"
#include "store/Workspace.h"

#include <QCoreApplication>
#include <QStringList>
#include <iostream>
#include <limits>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

Recordset openTable(const QString& path) {
    return DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {})
        .OpenDatabase(path)
        .OpenRecordset(u"tblMain"_s, dbOpenDynaset);
}

void report(const QString& text) {
    std::cout << text.toStdString() << std::endl;
}

void count(const QString& path) {
    Recordset cursor = openTable(path);
    for (int number = 1;; ++number) {
        cursor.Edit();
        cursor.Fields(u"note"_s) = QString::number(number) + u" and more"_s.repeated(number % 900);
        cursor.Update();
        report(QString::number(number));
    }
}

void add(const QString& path, int who, int rows) {
    Recordset cursor = openTable(path);
    for (int row = 1; row <= rows; ++row) {
        cursor.AddNew();
        cursor.Fields(u"verse"_s) = who * 1000000 + row;
        cursor.Update();
        report(QString::number(row));
    }
}

void fill(const QString& path, const QString& field, int rows) {
    Recordset cursor = openTable(path);
    for (int row = 1; row <= rows; ++row) {
        cursor.FindFirst(u"ID = %1"_s.arg(row));
        cursor.Edit();
        cursor.Fields(field) = row;
        cursor.Update();
    }
}

// The bytes of the file that stand for its locks, as the engine's file format has them.
void lock([[maybe_unused]] const QString& path, [[maybe_unused]] int milliseconds) {
#ifdef Q_OS_UNIX
    const int file = open(path.toLocal8Bit().constData(), O_RDWR);
    struct flock area = {};
    area.l_type = F_WRLCK;
    area.l_whence = SEEK_SET;
    area.l_start = 0x40000000;
    area.l_len = 512;
    report(fcntl(file, F_SETLK, &area) == 0 ? u"locked"_s : u"failed"_s);
    pollfd input = {STDIN_FILENO, POLLIN, 0};
    poll(&input, 1, milliseconds);
#endif
}

void reportError(const QString& what, const std::function<void()>& operation) {
    try {
        operation();
        report(what + u": done"_s);
    } catch (const Error& error) {
        report(what + u": %1 "_s.arg(error.number()) + error.text());
    }
}

// Who is kept from writing is told so at once.
void note(const QString& path, const QString& text) {
    storeTuning().busyTimeout = std::chrono::milliseconds(20);
    Recordset cursor = openTable(path);
    cursor.Edit();
    cursor.Fields(u"note"_s) = text;
    report(u"open"_s);
    std::cin.ignore(std::numeric_limits<std::streamsize>::max());
    reportError(u"update"_s, [&] { cursor.Update(); });
}

void look([[maybe_unused]] const QString& path) {
#ifdef Q_OS_UNIX
    constexpr uid_t Nobody = 65534;
    if (geteuid() == 0 && (setgid(Nobody) != 0 || setuid(Nobody) != 0))
        return;
    Recordset cursor;
    reportError(u"open"_s, [&] { cursor = openTable(path); });
    reportError(u"read"_s, [&] { report(cursor.Fields(u"body"_s).Value().toString()); });
    reportError(u"edit"_s, [&] { cursor.Edit(); });
    reportError(u"add"_s, [&] { cursor.AddNew(); });
    reportError(u"delete"_s, [&] { cursor.Delete(); });
#endif
}

void run(const QStringList& arguments) {
    const QString& task = arguments[1];
    const QString& path = arguments[2];
    if (task == u"count")
        count(path);
    else if (task == u"add")
        add(path, arguments[3].toInt(), arguments[4].toInt());
    else if (task == u"fill")
        fill(path, arguments[3], arguments[4].toInt());
    else if (task == u"lock")
        lock(path, arguments.size() > 3 ? arguments[3].toInt() : -1);
    else if (task == u"note")
        note(path, arguments[3]);
    else if (task == u"look")
        look(path);
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    storeTuning().busyTimeout = std::chrono::seconds(60); // the machine may be busy
    try {
        run(application.arguments());
    } catch (const Error& error) {
        std::cerr << error.what() << std::endl;
        return 1;
    }
    return 0;
}
