// A new file that takes the place of another as a whole: it is written under a name of its own in
// the same folder and renamed over the destination.
#pragma once

#include <QString>

class FileSwap {
public:
    // Clears away what killed programs left of the same destination an hour ago or earlier.
    explicit FileSwap(const QString& destination);

    // Removes the new file if it was not put in its place.
    ~FileSwap();
    Q_DISABLE_COPY_MOVE(FileSwap)

    // Where to write the new file.
    const QString& path() const { return m_path; }

    // To be called when the new file is closed and its content on disk; when it returns, the disk
    // also knows the name. Error::StorageFailure leaves the destination as it was.
    void putInPlace();

private:
    void settleJournal() const;

    QString m_destination;
    QString m_path;
};
