#include "desktop/HostPath.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

#ifndef Q_OS_WIN

bool hasDriveLetter(const QString& path) {
    return path.size() >= 2 && path[1] == u':' && path[0].unicode() < 128 && path[0].isLetter();
}

// The entry of `folder` that `name` means: itself if it exists, else the first that differs only
// in case, else `name` unchanged.
QString resolveName(const QString& folder, const QString& name) {
    if (name == u"." || name == u".." || QFileInfo::exists(folder + u'/' + name))
        return name;
    const QStringList entries = QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& entry : entries) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return entry;
    }
    return name;
}

// Walks down `names` from `folder`, as far as they exist; what follows is kept as given.
QString resolveNames(QString folder, const QStringList& names) {
    bool exists = true;
    for (const QString& name : names) {
        if (name.isEmpty())
            continue;
        const QString resolved =
            exists ? resolveName(folder.isEmpty() ? u"/"_s : folder, name) : name;
        folder += u'/' + resolved;
        exists = exists && QFileInfo::exists(folder);
    }
    return folder.isEmpty() ? u"/"_s : folder;
}

#endif

QString userDataFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/lumenvia"_s;
}

} // namespace

QString programFolder() {
    const QString home = qEnvironmentVariable("LUMENVIA_HOME");
    if (!home.isEmpty())
        return QDir::cleanPath(QDir(home).absolutePath());
#ifdef Q_OS_WIN
    const QString executableFolder = QCoreApplication::applicationDirPath();
    if (QFileInfo(executableFolder).isWritable())
        return QDir::toNativeSeparators(executableFolder);
#endif
    return userDataFolder();
}

#ifdef Q_OS_WIN

QString hostPath(const QString& path) {
    return path;
}

#else

QString hostPath(const QString& path) {
    if (path.isEmpty())
        return path;
    QString separated = path;
    separated.replace(u'\\', u'/');
    if (hasDriveLetter(separated)) {
        QStringList names = separated.mid(2).split(u'/');
        names.prepend(separated.left(1).toLower());
        return resolveNames(programFolder() + u"/drives"_s, names);
    }
    if (separated.startsWith(u'/'))
        return resolveNames({}, separated.split(u'/'));
    const QString folder = QDir::currentPath();
    return resolveNames(folder == u"/" ? QString() : folder, separated.split(u'/'));
}

#endif
