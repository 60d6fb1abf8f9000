// Writes a little Bible in each of the formats.
#pragma once

#include "plugins/import/SampleBible.h"

#include <QByteArray>
#include <ostream>
#include <span>

struct SampleFormat {
    const char* name; // also of the file
    const char* fileName;
    QByteArray (*content)(const QList<SampleVerse>& verses);
    bool isXml;
    bool hasMarks; // words of Christ
};

// Those that put a text into one file.
std::span<const SampleFormat> sampleFormats();
const SampleFormat& sampleFormat(const char* name);

// Writes a text into the folder and returns the path of the file.
QString
writeSample(const SampleFormat& format, const QList<SampleVerse>& verses, const QString& folder);
QString writeFile(const QString& folder, const QString& name, const QByteArray& content);

// For the names of tests.
void PrintTo(const SampleFormat& format, std::ostream* stream);
