// What stands in a folder of SWORD modules, seen without the library.
#pragma once

#include <QString>
#include <vector>

// The description of a module.
struct ModuleEntry {
    QString name;
    QString description; // the file
    QString driver;
    QString dataFolder;
    bool isZipped = false;   // in the compression that can be checked
    bool isCiphered = false; // with or without the key
    bool isLocked = false;   // without it

    bool isText() const; // one that holds the verses of a Bible
};

// The modules of a folder (the one that holds mods.d), by the names of their descriptions.
std::vector<ModuleEntry> modulesIn(const QString& folder);

// How many places the verse scheme of a module has, those of introductions included.
struct ModulePlaces {
    qint64 oldTestament = 0;
    qint64 newTestament = 0;
};

// Error::NotADatabase where the files of a text are not as its driver writes them, or lead to
// places that they do not have.
void checkModuleFiles(const ModuleEntry& module);

// Error::NotADatabase where the index of a testament that is there has fewer entries than places: a
// file that was cut off while it was copied. For a module that passed the check above.
void checkModuleLength(const ModuleEntry& module, const ModulePlaces& places);
