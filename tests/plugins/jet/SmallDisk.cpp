#include "plugins/jet/SmallDisk.h"

#include <QFile>
#include <sys/mount.h>

SmallDisk::~SmallDisk() {
    if (m_isMounted)
        umount(QFile::encodeName(m_folder.path()).constData());
}

bool SmallDisk::mount(int kilobytes) {
    const QByteArray size = "size=" + QByteArray::number(kilobytes) + "k";
    const QByteArray folder = QFile::encodeName(m_folder.path());
    m_isMounted = ::mount("tmpfs", folder.constData(), "tmpfs", 0, size.constData()) == 0;
    return m_isMounted;
}

bool SmallDisk::protect(bool isProtected) {
    const unsigned long flags = MS_REMOUNT | (isProtected ? MS_RDONLY : 0);
    return ::mount("tmpfs", QFile::encodeName(m_folder.path()).constData(), "tmpfs", flags, "")
           == 0;
}
