// Has Jet databases converted by lumenvia-plugins, in a process of its own: a damaged file can do
// the program no harm.
#pragma once

#include <QString>

// Keeps what setJetConverter (store/JetConverter.h) asks for. Returns when the tool has ended, or
// has been ended after two minutes. Error::NotADatabase with the tool's own text, or with what kept
// it from its work.
QString convertJetDatabase(const QString& path);
