// The verses of an OSIS document: each an element, or the text between two milestones.
#pragma once

#include "readers/XmlVerses.h"
#include "text/OsisText.h"

class OsisReader final : public XmlVerses {
public:
    explicit OsisReader(const QString& path);

private:
    void startElement(QStringView name, const QXmlStreamAttributes& attributes) override;
    void endElement(QStringView name) override;
    void characters(QStringView text) override;

    void startHeaderElement(QStringView name);
    bool startVerseOrTitle(QStringView name, const QXmlStreamAttributes& attributes);
    void startVerse(QStringView ids);
    void startBook(QStringView book);
    void startChapter(QStringView book, QStringView chapter);
    void passText();

    OsisText m_text;
    qsizetype m_pending = 0; // characters that m_text was given
    bool m_isInHeader = false;
    qsizetype m_verseDepth = -1; // of the element that holds the verse in hand
    qsizetype m_titleDepth = -1; // of a psalm's title in front of its first verse
    QString m_book;              // as the document names them
    QString m_chapter;
};
