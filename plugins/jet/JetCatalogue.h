// The user's tables in a Jet database.
#pragma once

#include "jet/JetFile.h"

#include <QList>

struct JetCatalogueEntry {
    QString name;
    quint32 page; // of the table's definition
};

// In the order of the file's catalogue, without the engine's own tables. Damage where the catalogue
// cannot be read, names a table twice or gives two of them one definition.
QList<JetCatalogueEntry> readJetCatalogue(JetFile& file);

// The entry of a table, without regard to case. Error::NotADatabase if there is none.
JetCatalogueEntry findJetTable(JetFile& file, const QString& name);
