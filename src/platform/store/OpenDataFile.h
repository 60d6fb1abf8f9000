// Opens a file as one of the store's, or says in words for the user why it is none.
#pragma once

#include "store/Connection.h"

#include <memory>

// The connection, ready for cursors; without the right to write when the file or its folder does
// not give it. `path` is the host's. The file's content is not walked, so the time does not depend
// on its size.
// Errors: FileNotFound; NotADatabase for a folder or a file that is empty, of another kind, cut off
// or damaged; StorageFailure when it cannot be opened or stays locked.
std::shared_ptr<Connection> openDataFile(const QString& path, bool readOnly);
