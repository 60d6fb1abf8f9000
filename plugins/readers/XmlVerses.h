// What the readers of XML formats share: a file whose elements are handed to the format one by one,
// until they have made a verse.
#pragma once

#include "readers/VerseGathering.h"
#include "readers/XmlInput.h"

class XmlVerses : public VerseSource {
public:
    std::optional<Verse> next() final;
    double fraction() const final { return m_input.fraction(); }
    QStringList remarks() const final { return m_verses.remarks(); }
    SourceInfo info() const final;

protected:
    // `format` is named in the data file as its source.
    XmlVerses(const QString& path, QString format);

    virtual void startElement(QStringView name, const QXmlStreamAttributes& attributes) = 0;
    virtual void endElement(QStringView name) = 0;
    virtual void characters(QStringView text) = 0;

    // The words up to the end of the element in hand are the text's own name, or its licence; the
    // first ones count.
    void takeTitle() { take(m_title); }
    void takeLicence() { take(m_licence); }

    VerseGathering& verses() { return m_verses; }

private:
    void readToken();
    void take(QString& words) { m_taking = words.isEmpty() ? &words : nullptr; }

    QString m_path;
    QString m_format;
    XmlInput m_input;
    VerseGathering m_verses;
    bool m_isThrough = false;
    QString m_title;
    QString m_licence;
    QString* m_taking = nullptr;
};
