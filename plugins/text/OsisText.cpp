#include "text/OsisText.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array DroppedElements{"note"_L1, "figure"_L1, "header"_L1, "speaker"_L1};

// Elements that stand for a line or a block of their own.
constexpr std::array SeparateElements{
    "l"_L1,    "lb"_L1,   "lg"_L1,  "p"_L1,    "div"_L1,     "item"_L1,
    "list"_L1, "cell"_L1, "row"_L1, "head"_L1, "chapter"_L1, "verse"_L1,
};

template <class Names>
bool holds(const Names& names, QStringView name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

// Markers of another format that a conversion left in the text, such as "\nd LORD\nd*".
void removeResidue(QString& text) {
    static const QRegularExpression closing(uR"(\\\+?[a-z]+\d?\*)"_s);
    static const QRegularExpression opening(uR"((?<!\S)\\\+?[a-z]+\d?(?:\s+|$))"_s);
    text.remove(closing).remove(opening);
}

QStringView lastWord(QStringView text) {
    qsizetype start = text.size();
    while (start > 0 && text[start - 1].isLetterOrNumber())
        --start;
    return text.sliced(start);
}

} // namespace

OsisText::Kind OsisText::kindOf(QStringView name, const QXmlStreamAttributes& attributes) {
    const QStringView type = attributes.value("type"_L1);
    if (name == "q"_L1)
        return attributes.value("who"_L1) == "Jesus"_L1 ? Kind::Spoken : Kind::Quotation;
    if (name == "transChange"_L1)
        return Kind::Added;
    if (name == "title"_L1) {
        const bool canonical = attributes.value("canonical"_L1) == "true"_L1;
        return canonical && type == "psalm"_L1 ? Kind::Separate : Kind::Title;
    }
    if (name == "div"_L1 && type == "book"_L1)
        return Kind::Book;
    if (holds(DroppedElements, name) || (name == "div"_L1 && type == "colophon"_L1))
        return Kind::Dropped;
    return holds(SeparateElements, name) ? Kind::Separate : Kind::Plain;
}

void OsisText::startElement(QStringView name, const QXmlStreamAttributes& attributes) {
    const QStringView start = attributes.value("sID"_L1);
    const QStringView end = attributes.value("eID"_L1);
    const Kind kind = kindOf(name, attributes);
    if (!isDropping())
        beginText(kind);
    if (kind == Kind::Book)
        m_bookClosed = !end.isEmpty();
    open(start.isEmpty() && end.isEmpty() ? kind : Kind::Plain);
    if (!start.isEmpty())
        startMilestone(kind, start);
    if (!end.isEmpty())
        endMilestone(end);
}

void OsisText::open(Kind kind) {
    m_open.append(kind);
    ++m_openOf.at(static_cast<std::size_t>(kind));
}

OsisText::Kind OsisText::close() {
    const Kind kind = m_open.takeLast();
    --m_openOf.at(static_cast<std::size_t>(kind));
    return kind;
}

void OsisText::beginText(Kind kind) {
    if (kind == Kind::Separate || kind == Kind::Book)
        m_verse.separate();
    else if (kind == Kind::Added && m_rule && m_verse.endsInWord())
        m_addedAt = m_verse.text().size();
}

void OsisText::startMilestone(Kind kind, QStringView id) {
    if (kind == Kind::Spoken)
        m_spoken.insert(id.toString());
    else if (kind == Kind::Dropped)
        m_subscription = id.toString();
}

// The end of a quotation need not say again who spoke.
void OsisText::endMilestone(QStringView id) {
    m_spoken.remove(id.toString());
    if (m_subscription == id)
        m_subscription.clear();
}

void OsisText::endElement() {
    const Kind kind = close();
    if (kind == Kind::Book)
        m_bookClosed = true;
    if (isDropping())
        return;
    if (kind == Kind::Separate || kind == Kind::Title)
        m_verse.separate();
    else if (kind == Kind::Dropped)
        m_verse.markJoint();
    else if (kind == Kind::Added && m_rule)
        endAddedWord();
}

void OsisText::endAddedWord() {
    const QStringView text = m_verse.text();
    const qsizetype at = std::exchange(m_addedAt, -1);
    if (at >= 0 && at < text.size() && text[at].isLetterOrNumber()
        && m_rule(lastWord(text.first(at)), text.sliced(at)))
        m_verse.insertBlank(at);
    m_verse.markJoint();
}

void OsisText::characters(QStringView text) {
    if (isDropping())
        return;
    if (!text.contains(u'\\'))
        return m_verse.append(text, isRed());
    QString clean = text.toString();
    removeResidue(clean);
    m_verse.append(clean, isRed());
}

MarkedText OsisText::takeVerse() {
    m_bookClosed = false;
    m_addedAt = -1;
    return std::exchange(m_verse, {});
}

bool OsisText::onlyQuotationsAreOpen() const {
    return std::all_of(m_open.begin(), m_open.end(), [](Kind kind) {
        return kind == Kind::Quotation || kind == Kind::Spoken;
    });
}

bool OsisText::isDropping() const {
    return m_bookClosed || !m_subscription.isEmpty() || isOpen(Kind::Dropped)
           || isOpen(Kind::Title);
}

bool OsisText::isRed() const {
    return !m_spoken.isEmpty() || isOpen(Kind::Spoken);
}
