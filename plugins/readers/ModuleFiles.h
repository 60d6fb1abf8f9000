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
    bool isLocked = false;

    bool isText() const; // one that holds the verses of a Bible
};

// The modules of a folder (the one that holds mods.d), by the names of their descriptions.
std::vector<ModuleEntry> modulesIn(const QString& folder);

// Error::NotADatabase where the files of a text are not as its driver writes them, or lead to
// places that they do not have.
void checkModuleFiles(const ModuleEntry& module);
