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
        .replace(u"\u00B4 s "_s, u"'s "_s)
        .replace(u'\u00B4', u'\'');
}

bool beginsWithName(const QString& part) {
    return !part.isEmpty() && part[0].isUpper();
}

// "a Gadite (collectively)"
bool tellsOfAName(const QString& part) {
    static const QRegularExpression people(u"^an? \\p{Lu}\\p{Ll}+(?:ite|ean|ian)\\b"_s);
    return beginsWithName(part) || people.match(part).hasMatch();
}

// Where a word comes from, in front of what it means: "patrial from H895". A capital letter behind
// the number, as in "The same as H940, Buzi", begins the meaning.
QString withoutOrigin(const QString& part) {
    static const QRegularExpression glued(
        u"^(?:of (?:Hebrew|Chaldee|Chaldean) origin \\([^)]*\\):?|"
        u"(?:[Tt]he same as|[Pp]atronymic from|[Pp]atrial from|[Ff]rom) H\\d+(?: \\([^)]*\\))?,?) "
        u"(?=\\p{Lu}\\p{Ll}|an? |my )"_s);
    QString rest = part;
    const QRegularExpressionMatch match = glued.match(part);
    return match.hasMatch() ? rest.remove(0, match.capturedLength()) : rest;
}

bool isOrigin(const QString& part) {
    static const QRegularExpression origin(
        u"^(?:\\([^)]*\\) )?(?:(?:probably|perhaps|apparently|or|else) )*(?:from|patrial "
        u"(?:from|of)|"
        u"patronymic from|contracted from|corresponding to|passive participle of)\\b.*\\bH\\d+"_s,
        QRegularExpression::CaseInsensitiveOption);
    return origin.match(part).hasMatch();
}

// The parts that hold a meaning; all of them where none does.
QStringList meaningsIn(const QStringList& parts) {
    QStringList meanings;
    for (const QString& part : parts) {
        if (const QString meaning = withoutOrigin(part); !isOrigin(meaning))
            meanings.append(meaning);
    }
    return meanings.isEmpty() ? parts : meanings;
}

// "Migdal-eder", "Beth-lehem (of Judah)" without what stands in brackets; empty for no name.
QString nameInGloss(QString gloss) {
    static const QRegularExpression brackets(u"\\s*[(\\[][^)\\]]*[)\\]]\\s*"_s);
    static const QRegularExpression name(u"^\\p{Lu}\\p{Ll}+(?:'s)?(?:[- ]\\p{Lu}?\\p{Ll}+)*$"_s);
    gloss.remove(brackets);
    return name.match(gloss).hasMatch() ? gloss : QString();
}

// "Juda(-h, -s)" is Juda, Judah and Judas.
QStringList spreadEndings(const QString& gloss) {
    static const QRegularExpression endings(
        u"^(\\p{Lu}[\\p{L}-]+)\\((-\\p{Ll}+(?:, -\\p{Ll}+)*)\\)$"_s);
    const QRegularExpressionMatch match = endings.match(gloss);
    if (!match.hasMatch())
        return {gloss};
    QStringList spread(match.captured(1));
    for (const QString& ending : match.captured(2).split(u", "_s))
        spread.append(match.captured(1) + ending.sliced(1));
    return spread;
}

// The words that render an entry, one by one.
QStringList glossesIn(const QString& usage) {
    QStringList glosses;
    for (const QString& group : topLevelParts(usage, u';')) {
        for (const QString& gloss : topLevelParts(group, u','))
            glosses.append(spreadEndings(gloss));
    }
    return glosses;
}

// The usage without the sentences behind it and the full stop.
QString glossesOf(const QString& usage) {
    static const QRegularExpression rest(u"\\. (?:Compare|See|Also|And|Cp)\\b.*$"_s);
    static const QRegularExpression stop(u"[\\s.]+$"_s);
    return QString(usage).remove(rest).remove(stop);
}

// "father of God. Abiel, the name of two Israelites": the part that begins with the name is a
// sentence of its own. What the source says twice is said once.
QString joinedParts(QStringList parts) {
    parts.removeDuplicates();
    static const QRegularExpression onlyAReference(
        u"^(?:\\([^)]*\\)\\s*)?(?:corresponding to|the same as|for|from) [GH]\\d+$"_s,
        QRegularExpression::CaseInsensitiveOption);
    QString text;
    for (const QString& part : std::as_const(parts)) {
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
        if (const QString plain = plainSpelling(name); plain != name)
            names.append(plain);
    }
    return names;
}

// `parts` are those of the definition. A common word may render a name too: "Peter, rock".
QList<ProperName>
namesIn(const QStringList& parts, const QString& usage, const QString& reference, bool isNamed) {
    QStringList names;
    const QStringList glosses = glossesIn(glossesOf(usage));
    for (const QString& gloss : glosses) {
        if (const QString name = nameInGloss(gloss); !name.isEmpty() && !names.contains(name))
            names.append(name);
    }
    const QString meaning = joinedParts(meaningsIn(parts));
    const bool onlyNames = names.size() == glosses.size();
    if (meaning.isEmpty() || !(onlyNames || isNamed || std::ranges::any_of(parts, tellsOfAName)))
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

QString plainSpelling(QString name) {
    return name.replace(u'\u00E6', u"ae"_s).replace(u'\u00C6', u"Ae"_s);
}

QList<ProperName> namesOfHebrewEntry(const QString& key, const QString& markup) {
    DefinitionVisitor visitor;
    visitFragment(markup, visitor);
    const QString text = cleanLine(restoredCommas(visitor.text()));
    // Some definitions hold the mark too; one lacks its colon, behind a verse.
    static const QRegularExpression usageMark(u"(?::\\s*|(?<=\\d) )-+"_s);
    const qsizetype start = text.lastIndexOf(usageMark);
    if (start < 0)
        return {};
    const QString definition = text.first(start).replace(usageMark, u";"_s);
    QStringList parts = topLevelParts(definition, u';');
    if (parts.size() > 1)
        parts.removeFirst(); // the origin
    const QString usage = text.sliced(start + usageMark.match(text, start).capturedLength());
    return namesIn(parts, usage, u'H' + withoutZeros(key), false);
}

QList<ProperName> namesOfGreekEntry(const QString& key, const GreekEntry& entry) {
    return namesIn(
        topLevelParts(entry.sense, u';'), entry.usage, u'G' + withoutZeros(key),
        beginsWithName(entry.word));
}
