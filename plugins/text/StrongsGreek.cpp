#include "text/StrongsGreek.h"

#include "text/Fragment.h"
#include "text/GlossList.h"
#include "text/PlainLines.h"

#include <QRegularExpression>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The first word, letters and sound are the entry's own; whatever follows is its text, where other
// words may be named too.
class GreekVisitor final : public FragmentVisitor {
public:
    void startElement(QStringView name, const QXmlStreamAttributes& attributes) override {
        if (name == "orth"_L1)
            m_target = targetOfWord(attributes.value("type"_L1));
        else if (name == "pron"_L1)
            m_target = own(m_sound);
        if (m_target && name != "ref"_L1)
            m_target->append(u' ');
    }

    void endElement(QStringView name) override {
        if (name == "orig"_L1)
            m_originEnd = m_text.size();
        if (name == "orth"_L1 || name == "pron"_L1)
            m_target = &m_text;
    }

    void characters(QStringView text) override {
        if (m_target)
            m_target->append(text);
    }

    GreekEntry entry(bool isWellFormed);

private:
    QString* own(QString& field) { return field.isEmpty() ? &field : &m_text; }

    QString* targetOfWord(QStringView type) {
        if (type == "writing"_L1)
            return nullptr;
        return type == "trans"_L1 ? own(m_word) : own(m_greek);
    }

    QString m_greek, m_word, m_sound, m_text;
    QString* m_target = &m_text;
    qsizetype m_originEnd = -1;
};

// A part of the text without the marks of a list around it.
QString tidyPart(const QString& text) {
    static const QRegularExpression marks(u"^[\\s,;:-]+|[\\s,;:-]+$"_s);
    static const QRegularExpression leadingZeros(u"\\b([GH])0+(?=\\d)"_s);
    return cleanLine(text).replace(u"( "_s, u"("_s).replace(leadingZeros, u"\\1"_s).remove(marks);
}

// Where the text in front of the first semicolon ends; 0 without one.
qsizetype endOfFirstPart(const QString& text) {
    static const QRegularExpression marks(u"^[\\s,;]*"_s);
    const qsizetype start = marks.match(text).capturedLength();
    return std::max<qsizetype>(topLevelIndexOf(text, u';', start), 0);
}

// Where the words that render the entry begin, behind ":--"; -1 without them.
qsizetype usageMarkIn(const QString& text, qsizetype originEnd) {
    const qsizetype last = text.lastIndexOf(":--"_L1);
    return last >= 0 ? last : text.indexOf("--"_L1, std::max<qsizetype>(originEnd, 0));
}

GreekEntry GreekVisitor::entry(bool isWellFormed) {
    GreekEntry entry;
    entry.isDamaged = !isWellFormed;
    entry.greek = cleanLine(m_greek);
    entry.word = cleanLine(m_word);
    entry.sound = cleanLine(m_sound);
    QString text = m_text;
    if (const qsizetype mark = usageMarkIn(text, m_originEnd); mark >= 0) {
        entry.usage = tidyPart(text.sliced(mark));
        text.truncate(mark);
    }
    const qsizetype originEnd = m_originEnd >= 0 ? m_originEnd : endOfFirstPart(text);
    entry.origin = tidyPart(text.first(originEnd));
    entry.sense = tidyPart(text.sliced(originEnd));
    if (entry.sense.isEmpty()) // the mark-up takes all of it for the origin
        entry.sense = entry.origin;
    return entry;
}

} // namespace

GreekEntry readGreekEntry(const QString& markup) {
    GreekVisitor visitor;
    const bool isWellFormed = visitFragment(markup, visitor);
    GreekEntry entry = visitor.entry(isWellFormed);
    if (entry.word.isEmpty() && entry.sense == "Not Used"_L1)
        entry.sense.clear();
    return entry;
}

QString numberedSenses(const QString& sense) {
    static const QRegularExpression likeAMark(u"([^\\s()\\[\\]]*\\d[abc]?)\\)"_s);
    QString bracketed = sense;
    bracketed.replace(likeAMark, u"[\\1])"_s);
    QStringList marked;
    for (const QString& part : topLevelParts(bracketed, u';'))
        marked.append(u"%1) %2"_s.arg(marked.size() + 1).arg(part));
    return marked.join(u' ');
}
