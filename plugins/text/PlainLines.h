// Plain text of several lines while it is gathered, fit for a text box and for a page: each line is
// cleaned as MarkedText cleans a verse, and has no blank before a comma, semicolon or bracket.
#pragma once

#include "text/MarkedText.h"

#include <QString>
#include <QStringList>

class PlainLines {
public:
    // Goes on with the current line.
    void append(QStringView text) { m_line.append(text, false); }

    // A blank before what follows on the line.
    void separate() { m_line.separate(); }

    // The next text begins a line. A line without text is none.
    void endLine();

    // The next text begins a line, with an empty one before it.
    void endParagraph();

    bool atStartOfLine() const { return m_line.text().isEmpty(); }

    // What was gathered; its lines end in a carriage return and a line feed, the last in nothing.
    QString takeText();

private:
    MarkedText m_line;
    QStringList m_lines;
    bool m_paragraphDue = false;
};

// A text of one line, cleaned.
QString cleanLine(QStringView text);
