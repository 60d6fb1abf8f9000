// Writes a text document as RTF in plain ASCII, with what the reader knows: fonts, sizes, the four
// emphases, colours, indents and alignment. The reader makes the same text and formats of it.
#pragma once

#include <QString>
#include <QTextDocument>

QString writeRtf(const QTextDocument& document);
