// Turns a real Jet database that stands where a data file is expected into a data file of ours.
//
// The reader of Jet files can be taken down by a damaged one (its library gives up the process when
// memory is short): convert in a process of its own, with its limits set (see ProcessLimits.h).
#pragma once

#include <QString>
#include <functional>

struct JetConversionOptions {
    // Takes the files of folders that cannot be written; empty: the user's cache.
    QString cacheFolder;

    // How long to wait for another converter that is at work on the same file.
    int lockWaitSeconds = 60;

    // Told the name of each step when it is done; for tests.
    std::function<void(const char* step)> onStep = {};
};

// The path (of the host) of the file to open in place of `path`.
//
// A data file of ours is its own answer. A Jet or ACE file is replaced by a data file with all its
// tables, and the original is kept beside it under its name with ".jet" (".2.jet" ... if taken).
// At any moment, also after a kill, `path` is the old file or the new one, each of them whole; what
// a killed converter left does not hinder the next one. Where the folder cannot be written, the
// file stays and a write-protected converted copy in the cache is the answer, made once.
//
// Error with what is wrong, the file untouched: FileNotFound; NotADatabase for a file of another
// kind, an encrypted or a damaged one (never is a part of it kept); StorageFailure when it cannot
// be written, stays locked or does not stop changing.
QString convertJetFile(const QString& path, const JetConversionOptions& options = {});
