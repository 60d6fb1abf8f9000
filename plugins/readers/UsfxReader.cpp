#include "readers/UsfxReader.h"

#include "readers/UsfmMarkers.h"

using namespace Qt::StringLiterals;

UsfxReader::UsfxReader(const QString& path)
    : ElementReader(path, u"USFX"_s) {}

// Elements bear the names of markers, or give the marker in an attribute.
MarkupKind UsfxReader::begin(QStringView name, const QXmlStreamAttributes& attributes) {
    const QStringView id = attributes.value("id"_L1);
    const QStringView marker = attributes.value("sfm"_L1);
    if (name == "book"_L1)
        verses().startBook(id.toString());
    else if (name == "c"_L1)
        verses().startChapter(id);
    else if (name == "v"_L1)
        verses().startVerse(id.toString());
    else if (name == "ve"_L1)
        verses().endVerse();
    else if (!marker.isEmpty())
        return usfmMarker(marker).kind;
    return usfmMarker(name).kind;
}
