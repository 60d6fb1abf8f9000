// What turns a real Jet database into a file of the store, when one is found under a data file's
// name. Reading such files takes a process of its own, since a damaged one may take its reader down
// with it; so the store only knows whom to ask.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <functional>

// Whether a file that begins so is a Jet or ACE database.
bool isJetHead(QByteArrayView head);

// Converts the Jet database at the path of the host and returns the path of the file to open: as a
// rule the same one, which the store's file has taken; another one, to be opened for reading, where
// the folder cannot be written. Throws Error with what is wrong, the file untouched.
using JetConverter = std::function<QString(const QString& path)>;

// Without a converter, the store refuses Jet databases.
void setJetConverter(JetConverter converter);
const JetConverter& jetConverter();
