#include "app/JetConversion.h"

#include "basic/Error.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHash>
#include <QProcess>
#include <QScopeGuard>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

constexpr int TimeLimit = 120'000; // milliseconds; a whole Bible takes less than one second

// A file in a folder that cannot be written stays as it is, so it would be converted again each
// time that the program opens it.
struct Conversion {
    QDateTime changed;
    qint64 size;
    QString result;
};

QHash<QString, Conversion>& conversions() {
    static QHash<QString, Conversion> known;
    return known;
}

QString knownResult(const QFileInfo& file) {
    const auto known = conversions().constFind(file.filePath());
    if (known == conversions().cend() || known->changed != file.lastModified()
        || known->size != file.size() || !QFileInfo::exists(known->result))
        return {};
    return known->result;
}

[[noreturn]] void fail(const QString& path, const QString& reason) {
    throw Error(
        Error::NotADatabase, u"The file \"%1\" is a Jet database and was not converted: %2"_s.arg(
                                 QDir::toNativeSeparators(path), reason));
}

// Beside the program, where it is installed, or where it is built.
QString findTool(const QString& path) {
    const QDir folder(QCoreApplication::applicationDirPath());
    QString tool = QStandardPaths::findExecutable(
        u"lumenvia-plugins"_s, {folder.path(), folder.filePath(u"../plugins"_s)});
    if (tool.isEmpty())
        fail(path, u"lumenvia-plugins is missing. Install it beside the program."_s);
    return tool;
}

void runTool(QProcess& process, const QString& path) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
    process.start(findTool(path), {u"convert"_s, path});
    process.closeWriteChannel();
    if (!process.waitForFinished(TimeLimit)) {
        const bool hasStarted = process.state() != QProcess::NotRunning;
        process.kill();
        process.waitForFinished();
        fail(path, hasStarted ? u"it took too long."_s : process.errorString());
    }
    if (process.exitStatus() != QProcess::NormalExit)
        fail(path, u"its reader gave up. The file is probably damaged."_s);
}

} // namespace

QString convertJetDatabase(const QString& path) {
    const QFileInfo file(path);
    if (QString known = knownResult(file); !known.isEmpty())
        return known;
    QProcess process;
    runTool(process, path);
    QString result = QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed();
    const QString complaint = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
    if (process.exitCode() != 0 || result.isEmpty())
        fail(path, complaint.isEmpty() ? u"lumenvia-plugins did not say why."_s : complaint);
    if (result != path)
        conversions().insert(path, {file.lastModified(), file.size(), result});
    return result;
}
