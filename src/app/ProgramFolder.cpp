#include "app/ProgramFolder.h"

#include "desktop/HostPath.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

QDir installedWorks() {
    return {QCoreApplication::applicationDirPath() + u"/../share/lumenvia"_s};
}

// The copy appears whole or not at all: a copy that was cut short would hide the work for good.
void copyWork(const QString& from, const QString& to) {
    const QString unfinished = to + u".part"_s;
    QFile::remove(unfinished);
    if (QFile::copy(from, unfinished))
        QFile::setPermissions(unfinished, QFile::permissions(unfinished) | QFileDevice::WriteOwner);
    if (!QFile::rename(unfinished, to))
        QFile::remove(unfinished);
}

} // namespace

void prepareProgramFolder() {
    const QString folder = programFolder();
    QDir().mkpath(folder);
    const QDir works = installedWorks();
    const QStringList names =
        works.entryList({u"*.mdb"_s, u"bible.hlp"_s, u"TIPOFDAY.TXT"_s}, QDir::Files);
    for (const QString& name : names) {
        const QString own = hostPath(folder + u'\\' + name);
        if (!QFile::exists(own))
            copyWork(works.filePath(name), own);
    }
}
