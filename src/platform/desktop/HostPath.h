// The program's paths and the host's. The program builds paths with "\" and drive letters on every
// system; here they become paths that the host's file system knows.
#pragma once

#include <QString>

// The folder of the program's data files, without a separator at its end: LUMENVIA_HOME if set; on
// Windows the folder of the executable when it is writable; otherwise the user's data folder.
QString programFolder();

// The host's path for a path of the program. "\" and "/" both separate; a name is found without
// regard to case (an exact match first); "X:\..." is the folder drives/x below the program's folder
// on systems without drive letters. A name that does not exist is kept as it was given.
QString hostPath(const QString& path);
