// The folder that data files are made in, and what is told of each file that is made there.
#pragma once

#include "Console.h"
#include "makers/Maker.h"

#include <functional>
#include <memory>

inline const QString StoppedByUser =
    QStringLiteral("Stopped. What was not finished has left nothing behind.");

// The path of the host for a folder as the program writes it, or as a user types it; made if it is
// missing. Error::PathAccess if it cannot be made.
QString madeFolder(const QString& folder);

// The order for a file in such a folder. The program finds its files without regard to case, so a
// file in another case is the same file.
Order orderFor(const QString& folder, const QString& file);

// Makes the file, with a bar on a terminal, and tells the maker's remarks, the rows and the
// seconds. `file` is its name as the program writes it. Error and Interrupted as the maker throws
// them.
void makeAndTell(
    const QString& file, const Order& order, const std::function<std::unique_ptr<Maker>()>& open,
    Console& console);
