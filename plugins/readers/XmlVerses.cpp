#include "readers/XmlVerses.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LongestTitle = 500;

} // namespace

XmlVerses::XmlVerses(const QString& path, QString format)
    : m_path(path)
    , m_format(std::move(format))
    , m_input(path)
    , m_verses(QFileInfo(path).fileName()) {}

std::optional<Verse> XmlVerses::next() {
    for (;;) {
        if (std::optional<Verse> verse = m_verses.take())
            return verse;
        if (m_isThrough)
            return std::nullopt;
        readToken();
    }
}

void XmlVerses::readToken() {
    const QXmlStreamReader& reader = m_input.reader();
    switch (m_input.next()) {
    case QXmlStreamReader::StartElement:
        startElement(reader.name(), reader.attributes());
        break;
    case QXmlStreamReader::EndElement:
        m_taking = nullptr;
        endElement(reader.name());
        break;
    case QXmlStreamReader::Characters:
        if (m_taking && m_taking->size() + reader.text().size() <= LongestTitle)
            m_taking->append(reader.text());
        characters(reader.text());
        break;
    case QXmlStreamReader::EndDocument:
        m_verses.finish();
        m_isThrough = true;
        break;
    default:
        break;
    }
}

SourceInfo XmlVerses::info() const {
    const QFileInfo file(m_path);
    const QString title = m_title.simplified();
    const QString licence = m_licence.simplified();
    return {
        title.isEmpty() ? file.completeBaseName() : title,
        u"%1 file %2"_s.arg(m_format, file.fileName()),
        licence.isEmpty() ? u"the user's own"_s : licence,
    };
}
