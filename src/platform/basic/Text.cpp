#include "basic/Text.h"

#include "basic/Error.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar Blank(u' ');

bool isSkipped(QChar character) {
    return character == Blank || character == u'\t' || character == u'\n' || character == u'\r';
}

[[noreturn]] void throwInvalidPosition() {
    throw Error(Error::InvalidPropertyValue, u"Invalid position or length."_s);
}

// Collects the characters of a decimal number and says when one does not belong to it.
class NumberScanner {
public:
    bool take(QChar character) {
        if (character.unicode() >= u'0' && character.unicode() <= u'9')
            return keep(character, true);
        if ((character == u'+' || character == u'-') && (m_number.isEmpty() || m_afterExponent))
            return keep(character, m_hasDigit);
        if (character == u'.' && !m_hasPoint && !m_hasExponent) {
            m_hasPoint = true;
            return keep(character, m_hasDigit);
        }
        if ((character == u'e' || character == u'E') && m_hasDigit && !m_hasExponent) {
            m_hasExponent = true;
            m_mantissaLength = m_number.size();
            keep(u'e', true);
            m_afterExponent = true;
            return true;
        }
        return false;
    }

    double value() const {
        const bool isExponentWhole = m_hasExponent && m_number.back().isDigit();
        const QString number =
            m_hasExponent && !isExponentWhole ? m_number.left(m_mantissaLength) : m_number;
        bool converted = false;
        const double value = number.toDouble(&converted);
        return converted ? value : 0;
    }

private:
    bool keep(QChar character, bool hasDigit) {
        m_number += character;
        m_hasDigit = hasDigit;
        m_afterExponent = false;
        return true;
    }

    QString m_number;
    qsizetype m_mantissaLength = 0;
    bool m_hasDigit = false;
    bool m_hasPoint = false;
    bool m_hasExponent = false;
    bool m_afterExponent = false;
};

} // namespace

QString Str(double number) {
    if (!std::isfinite(number))
        throw Error(Error::OverflowNumber, u"Overflow"_s);
    QString digits = QString::number(std::abs(number), 'g', 15);
    if (digits.startsWith(u"0."_s))
        digits.remove(0, 1);
    return (number < 0 ? u'-' : Blank) + digits;
}

double Val(const QString& text) {
    NumberScanner scanner;
    for (const QChar character : text) {
        if (!isSkipped(character) && !scanner.take(character))
            break;
    }
    const double number = scanner.value();
    return std::isfinite(number) ? number : 0;
}

QString Trim(const QString& text) {
    qsizetype first = 0;
    qsizetype last = text.size();
    while (first < last && text[first] == Blank)
        ++first;
    while (last > first && text[last - 1] == Blank)
        --last;
    return text.mid(first, last - first);
}

QString Mid(const QString& text, qsizetype start) {
    return Mid(text, start, text.size());
}

QString Mid(const QString& text, qsizetype start, qsizetype length) {
    if (start < 1 || length < 0)
        throwInvalidPosition();
    return text.mid(start - 1, length);
}

QString Left(const QString& text, qsizetype length) {
    if (length < 0)
        throwInvalidPosition();
    return text.left(length);
}

qsizetype
InStr(qsizetype start, const QString& text, const QString& find, Qt::CaseSensitivity comparison) {
    if (start < 1)
        throwInvalidPosition();
    if (start > text.size())
        return 0;
    return text.indexOf(find, start - 1, comparison) + 1;
}

qsizetype InStr(const QString& text, const QString& find) {
    return InStr(1, text, find);
}
