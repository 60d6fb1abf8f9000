// The catalogue: every work that the program can read, made here or not.
#pragma once

#include "makers/Maker.h"

#include <QLatin1String>
#include <QString>
#include <QStringList>
#include <memory>
#include <span>

struct Work {
    QLatin1String name; // on the command line
    QLatin1String file;
    QLatin1String title;
    QLatin1String tables;   // that hold its rows, parted by blanks
    QLatin1String packages; // of the source; empty for a work that needs none
    QLatin1String licence;
    // Nothing in it is of a source, so that there is never a reason to make it anew.
    bool isTheUsers = false;

    // Opens the sources in the first of `moduleFolders` that holds them. Error::FileNotFound with
    // what to install for a source that is not there. Null for a work without an openly licensed
    // source, which a user imports from a file of their own.
    std::unique_ptr<Maker> (*maker)(const QStringList& moduleFolders) = nullptr;
};

// The translations in the order of the program's own catalogue, then the other works.
std::span<const Work> works();

// By its name, without regard to case; nullptr for an unknown one.
const Work* findWork(QStringView name);
