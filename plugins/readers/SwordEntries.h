// The entries of a SWORD dictionary (driver zLD). Its files are read here and not by the library,
// which trusts every place and size that it finds in them.
#pragma once

#include "readers/ModuleConf.h"
#include "readers/VerseSource.h"

#include <QByteArray>
#include <QStringList>
#include <memory>

struct DictionaryEntry {
    QString key;
    QString text; // with the mark-up
};

class SwordEntries {
public:
    // Opens the dictionary `name` in `folder` (the one that holds mods.d); nullptr where the folder
    // has no such module. Error::NotADatabase for a module of another kind and for files that are
    // missing or empty.
    static std::unique_ptr<SwordEntries> open(const QString& folder, const QString& name);

    // The next entry in the module's order; nothing behind the last one. Entries that cannot be
    // read are passed over. Error::NotADatabase if in the end not one could be read.
    std::optional<DictionaryEntry> next();

    double fraction() const; // of the entries, 0 to 1
    SourceInfo info() const;

    // How many entries could not be read; a sentence, or none.
    QStringList remarks() const;

private:
    explicit SwordEntries(ModuleConf conf);
    std::optional<DictionaryEntry> entryAt(qsizetype number);
    bool openBlock(quint32 number);
    QByteArrayView textInBlock(quint32 number) const;

    ModuleConf m_conf;
    QByteArray m_places; // of the keys
    QByteArray m_keys;
    QByteArray m_blockPlaces;
    QByteArray m_blocks;
    QByteArray m_block;              // the one that is open, unpacked
    std::optional<quint32> m_opened; // its number
    qsizetype m_next = 0;
    qsizetype m_read = 0;
    qsizetype m_damaged = 0;
};
