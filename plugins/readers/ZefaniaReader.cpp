#include "readers/ZefaniaReader.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr int Psalms = 19;

bool isNamed(QStringView name, QLatin1String expected) {
    return name.compare(expected, Qt::CaseInsensitive) == 0;
}

// The format has no mark for the words of Christ, but texts print them in red.
bool isRed(QStringView css) {
    static const QRegularExpression red(
        u"(?:^|;)\\s*color\\s*:\\s*(?:red|#f00|#ff0000|rgb\\(\\s*255\\s*,\\s*0\\s*,\\s*0\\s*\\))"
        u"\\s*(?:!important\\s*)?(?:;|$)"_s,
        QRegularExpression::CaseInsensitiveOption);
    return css.contains(red);
}

MarkupKind kindOf(QStringView name, const QXmlStreamAttributes& attributes, int book) {
    for (const QLatin1String note : {"NOTE"_L1, "XREF"_L1, "MEDIA"_L1, "REMARK"_L1}) {
        if (isNamed(name, note))
            return MarkupKind::Note;
    }
    if (isNamed(name, "CAPTION"_L1) || isNamed(name, "INFORMATION"_L1))
        return MarkupKind::Heading;
    if (isNamed(name, "PROLOG"_L1))
        return book == Psalms ? MarkupKind::Title : MarkupKind::Heading;
    if (isNamed(name, "BR"_L1))
        return MarkupKind::Separate;
    return isNamed(name, "STYLE"_L1) && isRed(attributes.value("css"_L1)) ? MarkupKind::Red
                                                                          : MarkupKind::Plain;
}

} // namespace

ZefaniaReader::ZefaniaReader(const QString& path)
    : ElementReader(path, u"Zefania XML"_s) {}

MarkupKind ZefaniaReader::begin(QStringView name, const QXmlStreamAttributes& attributes) {
    if (isNamed(name, "BIBLEBOOK"_L1)) {
        const QString number = attributes.value("bnumber"_L1).toString();
        const QString bookName = attributes.value("bname"_L1).toString();
        const bool hasNumber = findBook(number) || bookName.isEmpty();
        verses().startBook(hasNumber ? number : bookName);
    } else if (isNamed(name, "CHAPTER"_L1)) {
        verses().startChapter(attributes.value("cnumber"_L1));
    } else if (isNamed(name, "VERS"_L1)) {
        verses().startVerse(attributes.value("vnumber"_L1).toString());
    } else if (isNamed(name, "INFORMATION"_L1)) {
        m_isInInformation = true;
    } else if (m_isInInformation && isNamed(name, "title"_L1)) {
        takeTitle();
    } else if (m_isInInformation && isNamed(name, "rights"_L1)) {
        takeLicence();
    }
    return kindOf(name, attributes, verses().book());
}

void ZefaniaReader::end(QStringView name) {
    if (isNamed(name, "VERS"_L1))
        verses().endVerse();
    else if (isNamed(name, "INFORMATION"_L1))
        m_isInInformation = false;
}
