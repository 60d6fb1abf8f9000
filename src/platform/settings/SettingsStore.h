// The per-user settings store: texts addressed by application, section and key, without regard to
// the case of the key. One INI file an application in the user's configuration folder.
//
// Two running programs may share it: a value that this program has not changed since it last saw
// it is not written, so that it never undoes what the other one saved. Nothing here fails: a store
// that cannot be read gives the defaults, one that cannot be written is left as it is, and a
// damaged file is kept beside the new one.
#pragma once

#include <QString>

// The stored text, or `standard` if there is none.
QString GetSetting(
    const QString& application, const QString& section, const QString& key,
    const QString& standard = {});

// Keeps a text. It reaches the disk at the next return to the event loop or with flushSettings.
void SaveSetting(
    const QString& application, const QString& section, const QString& key, const QString& value);

// Writes what was saved so far to disk: each file whole, or not at all.
void flushSettings();

// Where the files lie: `folder` instead of the user's configuration folder; forgets what was read.
void setSettingsFolder(const QString& folder);
