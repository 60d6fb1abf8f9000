#include "store/Criteria.h"

#include "basic/Error.h"

#include <array>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<QStringView, 6> ReservedWords{u"select", u"from", u"where",
                                                   u"and",    u"or",   u"like"};

bool isBlank(QChar character) {
    return character == u' ' || character == u'\t' || character == u'\n' || character == u'\r';
}

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

bool isPartOfName(QChar character) {
    return character.isLetterOrNumber() || character == u'_';
}

// Reads a text from left to right, one symbol at a time; a symbol that is not there is not taken.
class Reader {
public:
    explicit Reader(const QString& text)
        : m_text(text) {}

    bool atEnd() {
        skipBlanks();
        return m_place == m_text.size();
    }

    bool take(QChar symbol) {
        if (atEnd() || m_text[m_place] != symbol)
            return false;
        ++m_place;
        return true;
    }

    bool takeWord(QStringView word) {
        const qsizetype end = endOfName();
        if (m_text.sliced(m_place, end - m_place).compare(word, Qt::CaseInsensitive) != 0)
            return false;
        m_place = end;
        return true;
    }

    QString takeName() {
        const qsizetype end = endOfName();
        const QStringView name = m_text.sliced(m_place, end - m_place);
        if (name.isEmpty() || isDigit(name.front()) || isReserved(name))
            fail(u"a name is expected"_s);
        m_place = end;
        return name.toString();
    }

    // The text between two like quotes; no value if no quote stands here.
    std::optional<QString> takeText() {
        if (atEnd() || (m_text[m_place] != u'"' && m_text[m_place] != u'\''))
            return std::nullopt;
        const qsizetype end = m_text.indexOf(m_text[m_place], m_place + 1);
        if (end < 0)
            fail(u"the quote is not closed"_s);
        const QString text = m_text.sliced(m_place + 1, end - m_place - 1).toString();
        m_place = end + 1;
        return text;
    }

    double takeNumber() {
        skipBlanks();
        const qsizetype end = endOfNumber();
        bool converted = false;
        const double number = m_text.sliced(m_place, end - m_place).toDouble(&converted);
        if (!converted || !std::isfinite(number)
            || (end < m_text.size() && isPartOfName(m_text[end])))
            fail(u"a number or a text in quotes is expected"_s);
        m_place = end;
        return number;
    }

    [[noreturn]] void fail(const QString& reason) {
        skipBlanks();
        throw Error(
            Error::SyntaxInCriteria, u"The search cannot be carried out: at character %1 %2. "
                                     "A quotation mark in the text may be the cause."_s.arg(
                                         QString::number(m_place + 1), reason));
    }

private:
    void skipBlanks() {
        while (m_place < m_text.size() && isBlank(m_text[m_place]))
            ++m_place;
    }

    qsizetype endOfName() {
        skipBlanks();
        qsizetype end = m_place;
        while (end < m_text.size() && isPartOfName(m_text[end]))
            ++end;
        return end;
    }

    qsizetype behindDigits(qsizetype place) const {
        while (place < m_text.size() && isDigit(m_text[place]))
            ++place;
        return place;
    }

    qsizetype behindSign(qsizetype place) const {
        const bool isSign =
            place < m_text.size() && (m_text[place] == u'+' || m_text[place] == u'-');
        return isSign ? place + 1 : place;
    }

    qsizetype endOfNumber() const {
        qsizetype end = behindDigits(behindSign(m_place));
        if (end < m_text.size() && m_text[end] == u'.')
            end = behindDigits(end + 1);
        if (end < m_text.size() && m_text[end].toLower() == u'e')
            end = behindDigits(behindSign(end + 1));
        return end;
    }

    static bool isReserved(QStringView name) {
        for (const QStringView word : ReservedWords) {
            if (name.compare(word, Qt::CaseInsensitive) == 0)
                return true;
        }
        return false;
    }

    QStringView m_text;
    qsizetype m_place = 0;
};

class CriteriaParser {
public:
    explicit CriteriaParser(Reader& reader)
        : m_reader(reader) {}

    Criterion expression() { return list(Criterion::Kind::Or, u"or", &CriteriaParser::term); }

private:
    using Part = Criterion (CriteriaParser::*)();

    // Parts of one kind stand side by side, so that a long chain of them makes no deep tree.
    Criterion list(Criterion::Kind kind, QStringView word, Part part) {
        Criterion first = (this->*part)();
        if (!m_reader.takeWord(word))
            return first;
        Criterion whole;
        whole.kind = kind;
        whole.operands.push_back(std::move(first));
        do {
            whole.operands.push_back((this->*part)());
        } while (m_reader.takeWord(word));
        return whole;
    }

    Criterion term() { return list(Criterion::Kind::And, u"and", &CriteriaParser::factor); }

    Criterion factor() {
        if (!m_reader.take(u'('))
            return comparison();
        if (++m_depth > MaximumCriteriaDepth)
            m_reader.fail(u"there are too many parentheses within each other"_s);
        Criterion inner = expression();
        --m_depth;
        if (!m_reader.take(u')'))
            m_reader.fail(u"a closing parenthesis is expected"_s);
        return inner;
    }

    Criterion comparison() {
        if (++m_comparisons > MaximumComparisons)
            m_reader.fail(u"there are too many comparisons"_s);
        Criterion made;
        made.field = m_reader.takeName();
        if (m_reader.takeWord(u"like")) {
            made.kind = Criterion::Kind::Like;
            made.value = pattern();
            return made;
        }
        made.kind = comparisonSign();
        const std::optional<QString> text = m_reader.takeText();
        made.value = text ? QVariant(*text) : QVariant(m_reader.takeNumber());
        return made;
    }

    QString pattern() {
        const std::optional<QString> text = m_reader.takeText();
        if (!text)
            m_reader.fail(u"a text in quotes is expected"_s);
        return *text;
    }

    Criterion::Kind comparisonSign() {
        if (m_reader.take(u'='))
            return Criterion::Kind::Equal;
        if (m_reader.take(u'<'))
            return Criterion::Kind::Less;
        if (m_reader.take(u'>'))
            return Criterion::Kind::Greater;
        m_reader.fail(u"=, <, > or like is expected"_s);
    }

    Reader& m_reader;
    int m_depth = 0;
    int m_comparisons = 0;
};

void expectWord(Reader& reader, QStringView word) {
    if (!reader.takeWord(word))
        reader.fail(u"%1 is expected"_s.arg(word.toString().toUpper()));
}

void expectEnd(Reader& reader) {
    if (!reader.atEnd())
        reader.fail(u"the text should end"_s);
}

} // namespace

Criterion parseCriteria(const QString& text) {
    Reader reader(text);
    Criterion criteria = CriteriaParser(reader).expression();
    expectEnd(reader);
    return criteria;
}

SelectStatement parseSelect(const QString& text) {
    Reader reader(text);
    SelectStatement statement;
    expectWord(reader, u"select");
    if (!reader.take(u'*'))
        reader.fail(u"* is expected"_s);
    expectWord(reader, u"from");
    statement.table = reader.takeName();
    statement.hasCriteria = reader.takeWord(u"where");
    if (statement.hasCriteria)
        statement.criteria = CriteriaParser(reader).expression();
    expectEnd(reader);
    return statement;
}

bool isSelect(const QString& source) {
    return Reader(source).takeWord(u"select");
}
