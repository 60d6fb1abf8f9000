// What the program tells about the translations.
#pragma once

#include <QString>

// One heading and one paragraph a translation, a blank line between them. Lines end in "\n".
QString bibleDescriptions();
