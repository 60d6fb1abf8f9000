// What the readers of USX, USFX and Zefania share: what a format says of each element decides what
// becomes of the words in it.
#pragma once

#include "readers/OpenMarkup.h"
#include "readers/XmlVerses.h"

class ElementReader : public XmlVerses {
protected:
    using XmlVerses::XmlVerses;

    // Begins books, chapters and verses, and says what the element means for its words.
    virtual MarkupKind begin(QStringView name, const QXmlStreamAttributes& attributes) = 0;
    virtual void end(QStringView) {}

private:
    void startElement(QStringView name, const QXmlStreamAttributes& attributes) final {
        m_open.open(begin(name, attributes));
    }
    void endElement(QStringView name) final {
        m_open.close();
        end(name);
    }
    void characters(QStringView text) final { m_open.characters(text); }

    OpenMarkup m_open{verses()};
};
