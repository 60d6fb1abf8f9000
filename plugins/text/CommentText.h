// The plain text of a chapter's comment, gathered from the entries of a commentary.
#pragma once

#include "text/Fragment.h"
#include "text/PlainLines.h"

class CommentText final : public FragmentVisitor {
public:
    // Headings, paragraphs and rows of a table are lines of their own; an empty line parts
    // paragraphs.
    void startElement(QStringView name, const QXmlStreamAttributes& attributes) override;
    void endElement(QStringView name) override;
    void characters(QStringView text) override;

    // The next entry begins a line.
    void endEntry() { m_lines.endLine(); }

    QString takeText() { return m_lines.takeText(); }

private:
    PlainLines m_lines;
    bool m_inHeading = false; // of some verses: bold
};
