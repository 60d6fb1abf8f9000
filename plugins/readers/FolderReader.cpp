#include "readers/FolderReader.h"

#include "basic/Error.h"
#include "readers/NameList.h"
#include "readers/OpenSource.h"

#include <QDir>

using namespace Qt::StringLiterals;

FolderReader::FolderReader(const QString& folder)
    : m_folder(QDir(folder).isRoot() ? folder : QDir(folder).dirName()) {
    NameList others;
    const QDir files(folder, QString(), QDir::Name, QDir::Files);
    for (const QString& name : files.entryList()) {
        const QString path = files.filePath(name);
        if (isBookFile(path))
            m_files.append(path);
        else
            others.add(name);
    }
    if (m_files.isEmpty())
        throw Error(
            Error::NotADatabase,
            u"%1: there is no book in USFM or XML in this folder. A text of another kind is "
            u"imported by the name of its file."_s.arg(m_folder));
    others.report(m_remarks, u"files left out, since they are no books in USFM or XML"_s);
}

std::optional<Verse> FolderReader::next() {
    for (;;) {
        if (!m_file) {
            if (m_opened == m_files.size())
                return std::nullopt;
            m_file = openVerseSource(m_files[m_opened++]);
        }
        if (std::optional<Verse> verse = m_file->next())
            return verse;
        if (m_first.source.isEmpty())
            m_first = m_file->info();
        m_remarks += m_file->remarks();
        m_file.reset();
    }
}

double FolderReader::fraction() const {
    const double inFile = m_file ? m_file->fraction() - 1 : 0;
    return (double(m_opened) + inFile) / double(m_files.size());
}

QStringList FolderReader::remarks() const {
    return m_remarks;
}

SourceInfo FolderReader::info() const {
    const qsizetype count = m_files.size();
    return {
        m_folder, u"%1 file(s) of the folder %2"_s.arg(count).arg(m_folder),
        m_first.licence.isEmpty() ? u"the user's own"_s : m_first.licence};
}
