// The table of the works that this program makes.
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
    QLatin1String package; // of the source; empty for a work that needs none
    QLatin1String module;  // the SWORD module of that package
    QLatin1String licence;
    bool
        isTheUsers; // nothing in it is of a source, so that there is never a reason to make it anew

    // Opens the source in the first of `moduleFolders` that holds it. Error::FileNotFound with what
    // to install for a source that is not there.
    std::unique_ptr<Maker> (*maker)(const Work& work, const QStringList& moduleFolders);
};

std::span<const Work> works();

// By its name, without regard to case; nullptr for an unknown one.
const Work* findWork(QStringView name);
