#include "readers/UsxReader.h"

#include "readers/UsfmMarkers.h"

using namespace Qt::StringLiterals;

namespace {

MarkupKind kindOf(QStringView name, QStringView style) {
    if (name == "note"_L1 || name == "figure"_L1)
        return MarkupKind::Note;
    if (name == "sidebar"_L1 || name == "periph"_L1 || name == "book"_L1)
        return MarkupKind::Heading;
    if (name == "para"_L1 || name == "char"_L1)
        return usfmMarker(style).kind;
    return usfmMarker(name).kind;
}

} // namespace

UsxReader::UsxReader(const QString& path)
    : ElementReader(path, u"USX"_s) {}

// Ends of chapters and verses are elements of the same name that bear no number.
MarkupKind UsxReader::begin(QStringView name, const QXmlStreamAttributes& attributes) {
    const QStringView number = attributes.value("number"_L1);
    if (name == "book"_L1)
        verses().startBook(attributes.value("code"_L1).toString());
    else if (name == "chapter"_L1 && !attributes.hasAttribute("eid"_L1))
        verses().startChapter(number);
    else if (name == "verse"_L1 && attributes.hasAttribute("eid"_L1))
        verses().endVerse();
    else if (name == "verse"_L1)
        verses().startVerse(number.toString());
    return kindOf(name, attributes.value("style"_L1));
}
