// Between formatted texts and the text documents that show them.
#pragma once

#include "richtext/RichText.h"

#include <QTextCharFormat>
#include <QTextDocument>

// Property of a character format: the family that the text asked for, where another stands in.
inline constexpr int wantedFamilyProperty = QTextFormat::UserProperty + 1;

// The distance between lines, in per cent of the font's own.
inline constexpr int lineSpacing = 120;

// Device-independent pixels; a twip is 1/1440 inch.
constexpr double pixelsFromTwips(int twips) {
    return twips / 15.0;
}
int twipsFromPixels(double pixels);

// Replaces the document's content in one step. The document's undo history is lost.
void fillDocument(QTextDocument& document, const RichText& content);

// A block's format for `style`. Indents that would leave the page are cut at its edge.
QTextBlockFormat blockFormat(const ParagraphStyle& style);

// Sets the family that shows for `family`, and remembers the latter.
void setFamily(QTextCharFormat& format, const QString& family);

// The text with "\n" for each line end: one unit for each position of a cursor.
QString documentText(const QTextDocument& document);
