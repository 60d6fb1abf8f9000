#include "text/ProperNames.h"

#include "text/Fragment.h"
#include "text/GlossList.h"
#include "text/PlainLines.h"

#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// The text of an entry's definition.
class DefinitionVisitor final : public FragmentVisitor {
public:
    void startElement(QStringView name, const QXmlStreamAttributes&) override {
        m_inDefinition = m_inDefinition || name == "def"_L1;
        if (name == "lb"_L1)
            append(u" ");
    }
    void endElement(QStringView name) override {
        if (name == "def"_L1)
            m_inDefinition = false;
    }
    void characters(QStringView text) override { append(text); }

    const QString& text() const { return m_text; }

private:
    void append(QStringView text) {
        if (m_inDefinition)
            m_text.append(text);
    }

    QString m_text;
    bool m_inDefinition = false;
};

// The Hebrew text has lost its commas: "{word} next" was "word, next", and a line that ended in a
// comma ends in a 6. A colon in a reference has grown to "H22 : H30", and a
// genitive is "Saul´ s".
QString restoredCommas(QString text) {
    static const QRegularExpression braces(u"\\{([^{}]*)\\}(\\)*)"_s);
    static const QRegularExpression digit(u"(?<=[^\\W\\d_])6(?=\\s)"_s);
    static const QRegularExpression reference(u"\\bH(\\d+) : H(\\d+)"_s);
    qsizetype length = -1;
    while (text.size() != length) { // one pair may stand in another
        length = text.size();
        text.replace(braces, u"\\1\\2,"_s);
    }
    return text.replace(digit, u","_s)
        .replace(reference, u"\\1:\\2"_s)
        .replace(u"\u00B4 s "_s, u"'s "_s);
}

bool beginsWithName(const QString& part) {
    return !part.isEmpty() && part[0].isUpper();
}

// "Migdal-eder", "Beth-lehem (of Judah)" without what stands in brackets; empty for no name.
QString nameInGloss(QString gloss) {
    static const QRegularExpression brackets(u"\\s*[(\\[][^)\\]]*[)\\]]\\s*"_s);
    static const QRegularExpression name(u"^\\p{Lu}\\p{Ll}+(?:'s)?(?:[- ]\\p{Lu}?\\p{Ll}+)*$"_s);
    gloss.remove(brackets);
    return name.match(gloss).hasMatch() ? gloss : QString();
}

// The usage without the sentences behind it and the full stop.
QString glossesOf(const QString& usage) {
    static const QRegularExpression rest(u"\\. (?:Compare|See|Also|And|Cp)\\b.*$"_s);
    static const QRegularExpression stop(u"[\\s.]+$"_s);
    return QString(usage).remove(rest).remove(stop);
}

// "father of God. Abiel, the name of two Israelites": the part that begins with the name is a
// sentence of its own.
QString joinedParts(const QStringList& parts) {
    static const QRegularExpression onlyAReference(
        u"^(?:\\([^)]*\\)\\s*)?(?:corresponding to|the same as|for|from) [GH]\\d+$"_s,
        QRegularExpression::CaseInsensitiveOption);
    QString text;
    for (const QString& part : parts) {
        if (onlyAReference.match(part).hasMatch())
            continue;
        if (!text.isEmpty())
            text.append(beginsWithName(part) ? u". "_s : u"; "_s);
        text.append(part);
    }
    return text;
}

// The Bible prints "Cæsar", and people type "Caesar".
QStringList withPlainSpellings(QStringList names) {
    for (const QString& name : QStringList(names)) {
        if (name.contains(u'\u00E6'))
            names.append(QString(name).replace(u"\u00E6"_s, u"ae"_s));
    }
    return names;
}

// `parts` are those of the definition, without the origin.
QList<ProperName>
namesIn(const QStringList& parts, const QString& usage, const QString& reference) {
    QStringList names;
    const QStringList glosses = topLevelParts(glossesOf(usage), u',');
    for (const QString& gloss : glosses) {
        if (const QString name = nameInGloss(gloss); !name.isEmpty() && !names.contains(name))
            names.append(name);
    }
    const QString meaning = joinedParts(parts);
    const bool onlyNames = names.size() == glosses.size();
    if (meaning.isEmpty() || !(onlyNames || std::ranges::any_of(parts, beginsWithName)))
        return {};
    const QString stop = meaning.endsWith(u'.') ? QString() : u"."_s;
    QList<ProperName> found;
    for (const QString& name : withPlainSpellings(names))
        found.append({name, meaning + stop + u" [%1]"_s.arg(reference)});
    return found;
}

QString withoutZeros(const QString& key) {
    return QString::number(key.toInt());
}

} // namespace

QList<ProperName> namesOfHebrewEntry(const QString& key, const QString& markup) {
    DefinitionVisitor visitor;
    visitFragment(markup, visitor);
    const QString text = cleanLine(restoredCommas(visitor.text()));
    static const QRegularExpression usageMark(u":\\s*-+"_s);
    const QRegularExpressionMatch mark = usageMark.match(text);
    if (!mark.hasMatch())
        return {};
    QStringList parts = topLevelParts(QStringView(text).first(mark.capturedStart()), u';');
    if (parts.size() > 1)
        parts.removeFirst(); // the origin
    return namesIn(parts, text.sliced(mark.capturedEnd()), u'H' + withoutZeros(key));
}

QList<ProperName> namesOfGreekEntry(const QString& key, const GreekEntry& entry) {
    return namesIn(topLevelParts(entry.sense, u';'), entry.usage, u'G' + withoutZeros(key));
}
