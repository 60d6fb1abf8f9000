// A file system of its own for a test that needs a full or a write-protected one. Mounting it takes
// rights that a test may not have.
#pragma once

#include <QTemporaryDir>

class SmallDisk {
public:
    SmallDisk() = default;
    ~SmallDisk();
    Q_DISABLE_COPY_MOVE(SmallDisk)

    // False where it is not allowed.
    bool mount(int kilobytes);

    // From now on nothing can be written, not even by the system's owner; or everything again.
    bool protect(bool isProtected = true);

    QString folder() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
    bool m_isMounted = false;
};
