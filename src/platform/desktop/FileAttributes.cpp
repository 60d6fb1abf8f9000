#include "desktop/FileAttributes.h"

#include "basic/Error.h"
#include "desktop/HostPath.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

bool FileExists(const QString& name) {
    const QString path = hostPath(name);
    // A folder or a pipe may open as well, and a pipe would wait for its writer.
    return QFileInfo(path).isFile() && QFile(path).open(QIODevice::ReadOnly);
}

int GetAttr(const QString& name) {
    const QFileInfo file(hostPath(name));
    if (!file.exists())
        throw Error(Error::FileNotFound, u"File not found: "_s + name);
    return file.permission(QFileDevice::WriteOwner) ? 0 : 1;
}

void clearAttributes(const QString& name) {
    QFile file(hostPath(name));
    if (!file.setPermissions(file.permissions() | QFileDevice::WriteOwner))
        throw Error(Error::PathAccess, u"Path/File access error: "_s + name);
}
