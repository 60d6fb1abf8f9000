#include "text/Fragment.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String Root = "fragment"_L1;

bool isWellFormed(const QString& document) {
    QXmlStreamReader reader(document);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd())
        reader.readNext();
    return !reader.hasError();
}

QString withoutTags(QString fragment) {
    static const QRegularExpression tag(u"</?[A-Za-z][^<>]*>"_s);
    fragment.remove(tag);
    return fragment.replace(u"&lt;"_s, u"<"_s)
        .replace(u"&gt;"_s, u">"_s)
        .replace(u"&quot;"_s, u"\""_s)
        .replace(u"&apos;"_s, u"'"_s)
        .replace(u"&amp;"_s, u"&"_s);
}

} // namespace

bool visitFragment(const QString& fragment, FragmentVisitor& visitor) {
    const QString document = u"<%1>%2</%1>"_s.arg(Root, fragment);
    if (!isWellFormed(document)) {
        visitor.characters(withoutTags(fragment));
        return false;
    }
    QXmlStreamReader reader(document);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::Characters)
            visitor.characters(reader.text());
        else if (token == QXmlStreamReader::StartElement && reader.name() != Root)
            visitor.startElement(reader.name(), reader.attributes());
        else if (token == QXmlStreamReader::EndElement && reader.name() != Root)
            visitor.endElement(reader.name());
    }
    return true;
}
