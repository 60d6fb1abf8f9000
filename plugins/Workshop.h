// Makes works one after the other in one folder, and tells of each.
#pragma once

#include "Console.h"
#include "Works.h"

struct WorkshopOptions {
    QString folder;            // of the data files, as the program writes paths; made if missing
    QStringList moduleFolders; // where SWORD modules are looked for, in this order
    bool force = false;        // make files anew that are there already
};

class Workshop {
public:
    Workshop(const WorkshopOptions& options, Console& console);

    // Whether all of them are there in the end. One that cannot be made does not hinder the next;
    // an interrupt ends it.
    bool make(const QList<const Work*>& works);

    // The table of works. A file that cannot be read is told in its line.
    void list() const;

private:
    bool makeWork(const Work& work);
    QString lineOf(const Work& work) const;

    WorkshopOptions m_options;
    Console& m_console;
};
