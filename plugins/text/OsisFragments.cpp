#include "text/OsisFragments.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String EndOfFragment = "endOfFragment"_L1;

// The text of a fragment whose mark-up cannot be read. Notes and headings go as far as they are
// complete; a "<" that begins no tag stays.
QString stripTags(QString fragment) {
    static const QRegularExpression dropped(
        uR"(<(note|title)\b[^<>]*(?<!/)>.*?</\1\s*>)"_s,
        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression tag(u"</?[A-Za-z][^<>]*>"_s);
    fragment.replace(dropped, u" "_s).remove(tag);
    return fragment.replace(u"&lt;"_s, u"<"_s)
        .replace(u"&gt;"_s, u">"_s)
        .replace(u"&quot;"_s, u"\""_s)
        .replace(u"&apos;"_s, u"'"_s)
        .replace(u"&amp;"_s, u"&"_s);
}

} // namespace

MarkedText OsisFragments::flatten(const QString& fragment) {
    m_wasDamaged = !feed(fragment);
    if (!m_wasDamaged)
        return m_text.takeVerse();
    m_text = OsisText(m_rule);
    m_text.characters(stripTags(fragment));
    return m_text.takeVerse();
}

// Whether the fragment was well formed, but for quotations that go on into the next one. The
// elements that are open from the fragments before are opened again for the reader's sake.
bool OsisFragments::feed(const QString& fragment) {
    qsizetype reopened = m_text.openElements() + 1;
    QXmlStreamReader reader;
    reader.setNamespaceProcessing(false);
    reader.addData(u"<q>"_s.repeated(reopened) + fragment + u"<%1/>"_s.arg(EndOfFragment));
    while (!reader.hasError()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (reader.name() == EndOfFragment)
                return m_text.onlyQuotationsAreOpen();
            if (reopened > 0)
                --reopened;
            else
                m_text.startElement(reader.name(), reader.attributes());
            break;
        case QXmlStreamReader::EndElement:
            if (m_text.openElements() == 0)
                return false;
            m_text.endElement();
            break;
        case QXmlStreamReader::Characters:
            m_text.characters(reader.text());
            break;
        default:
            break;
        }
    }
    return false;
}
