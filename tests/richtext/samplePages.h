// Pages as the program writes them, for tests and measurements.
#pragma once

#include <QString>
#include <QStringList>

// The RTF of a page of the Psalm with the given verses, numbered from 1: heading in bold, hanging
// indent from the second verse on, and the closing braces, all as the page composer writes them.
QString psalmPage(const QStringList& verses, int chapter = 119);

// 176 verses of plausible length, about 14 KB of text with their headings. Always the same.
QStringList longestPsalm();

// An entry of the lexicon.
QString lexiconEntry();
