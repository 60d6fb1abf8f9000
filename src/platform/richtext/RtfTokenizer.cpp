#include "richtext/RtfTokenizer.h"

#include <algorithm>

namespace {

constexpr qsizetype longestWord = 32;
constexpr int largestNumber = 1'000'000'000;

bool isLetter(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

// Line ends in the source only break its lines.
bool isSourceLineEnd(QChar c) {
    return c == u'\r' || c == u'\n';
}

bool isPlain(QChar c) {
    return c != u'\\' && c != u'{' && c != u'}' && !isSourceLineEnd(c);
}

int hexDigit(QChar c) {
    if (isDigit(c))
        return c.unicode() - u'0';
    const char16_t lower = c.unicode() | 0x20;
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

} // namespace

RtfToken RtfTokenizer::next() {
    while (!atEnd() && isSourceLineEnd(m_text[m_position]))
        ++m_position;
    if (atEnd())
        return {};
    const QChar first = m_text[m_position];
    if (first == u'{' || first == u'}') {
        ++m_position;
        return {first == u'{' ? RtfToken::OpenGroup : RtfToken::CloseGroup, {}};
    }
    return first == u'\\' ? readControl() : readText();
}

void RtfTokenizer::skip(qsizetype length) {
    m_position += std::clamp<qsizetype>(length, 0, m_text.size() - m_position);
}

RtfToken RtfTokenizer::readText() {
    const qsizetype start = m_position;
    while (!atEnd() && isPlain(m_text[m_position]))
        ++m_position;
    return {RtfToken::Text, m_text.sliced(start, m_position - start)};
}

RtfToken RtfTokenizer::readControl() {
    ++m_position;
    if (atEnd())
        return {};
    const QChar first = m_text[m_position];
    if (isLetter(first))
        return readWord();
    ++m_position;
    if (first == u'\'')
        return readHexByte();
    return {RtfToken::Symbol, m_text.sliced(m_position - 1, 1)};
}

RtfToken RtfTokenizer::readWord() {
    const qsizetype start = m_position;
    while (!atEnd() && isLetter(m_text[m_position]))
        ++m_position;
    const qsizetype length = std::min(m_position - start, longestWord);
    RtfToken token{RtfToken::Word, m_text.sliced(start, length)};
    token.hasNumber = readNumber(token.number);
    if (!atEnd() && m_text[m_position] == u' ')
        ++m_position;
    return token;
}

RtfToken RtfTokenizer::readHexByte() {
    RtfToken token{RtfToken::HexByte, {}, -1};
    for (int digits = 0; digits < 2 && !atEnd(); ++digits) {
        const int digit = hexDigit(m_text[m_position]);
        if (digit < 0)
            break;
        token.number = std::max(token.number, 0) * 16 + digit;
        ++m_position;
    }
    return token;
}

// A sign without digits behind it is text.
bool RtfTokenizer::readNumber(int& number) {
    const bool negative = !atEnd() && m_text[m_position] == u'-';
    qsizetype at = m_position + (negative ? 1 : 0);
    const qsizetype firstDigit = at;
    int value = 0;
    for (; at < m_text.size() && isDigit(m_text[at]); ++at) {
        if (value < largestNumber / 10)
            value = value * 10 + (m_text[at].unicode() - u'0');
        else
            value = largestNumber;
    }
    if (at == firstDigit)
        return false;
    m_position = at;
    number = negative ? -value : value;
    return true;
}
