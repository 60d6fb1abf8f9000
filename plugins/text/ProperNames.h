// The proper names in Strong's dictionaries, each with its meaning.
#pragma once

#include "text/StrongsGreek.h"

#include <QList>
#include <QString>

struct ProperName {
    QString name; // as the King James Version writes it
    QString meaning;
};

// The names that an entry stands for; none for an entry that is no name. `key` is the entry's
// number, with or without zeros before it.
QList<ProperName> namesOfHebrewEntry(const QString& key, const QString& markup);
QList<ProperName> namesOfGreekEntry(const QString& key, const GreekEntry& entry);

// "Aeneas" for "Æneas": the letters that people type, and that names are sorted by.
QString plainSpelling(QString name);
