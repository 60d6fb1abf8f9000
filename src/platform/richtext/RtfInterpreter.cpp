#include "richtext/RtfInterpreter.h"

#include "richtext/RtfWords.h"

#include <algorithm>

namespace {

// Groups nested deeper than this share the format of the innermost one that is kept.
constexpr size_t deepestGroup = 1000;

constexpr int defaultHalfPoints = 24;
constexpr int largestHalfPoints = 1000;
constexpr int largestTabDistance = 31680;

constexpr int firstWindowsByte = 0x80;
// Windows-1252 differs from the first 256 characters of Unicode in these 32 places alone.
constexpr char16_t windowsCharacters[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t fromWindows1252(int byte) {
    const int place = byte - firstWindowsByte;
    const bool differs = place >= 0 && place < int(std::size(windowsCharacters));
    return differs ? windowsCharacters[place] : char16_t(byte);
}

} // namespace

RtfInterpreter::RtfInterpreter(QStringView rtf)
    : m_tokens(rtf) {
    m_result.text.reserve(rtf.size());
    resetCharacter();
}

RichText RtfInterpreter::read() {
    // The brace around the whole text opens no group: its closing brace, and any surplus one, then
    // leaves the format as it is for whatever text still follows.
    m_tokens.skip(1);
    for (RtfToken token = m_tokens.next(); token.kind != RtfToken::End; token = m_tokens.next())
        follow(token);
    m_result.finishAtMark(m_state.paragraph);
    return std::move(m_result);
}

void RtfInterpreter::follow(const RtfToken& token) {
    const bool opensGroup = token.kind == RtfToken::OpenGroup;
    const bool marksGroup = m_atGroupStart && token.kind == RtfToken::Symbol && token.text == u'*';
    switch (token.kind) {
    case RtfToken::OpenGroup:
        openGroup();
        break;
    case RtfToken::CloseGroup:
        closeGroup();
        break;
    case RtfToken::Word:
        followWord(token);
        break;
    case RtfToken::Symbol:
        followSymbol(token.text.front());
        break;
    case RtfToken::HexByte:
        followHexByte(token.number);
        break;
    case RtfToken::Text:
        followText(token.text);
        break;
    case RtfToken::End:
        break;
    }
    m_starred = marksGroup;
    m_atGroupStart = opensGroup || marksGroup;
}

void RtfInterpreter::openGroup() {
    m_fallbackLeft = 0;
    if (m_groups.size() < deepestGroup)
        m_groups.push_back(m_state);
    else
        ++m_unsavedGroups;
}

void RtfInterpreter::closeGroup() {
    m_fallbackLeft = 0;
    if (m_unsavedGroups > 0) {
        --m_unsavedGroups;
    } else if (!m_groups.empty()) {
        m_state = m_groups.back();
        m_groups.pop_back();
    }
}

void RtfInterpreter::followWord(const RtfToken& token) {
    m_fallbackLeft = 0;
    if (m_atGroupStart && m_state.destination != Destination::Nowhere) {
        const auto destination = rtfDestination(token.text);
        if (destination || m_starred)
            m_state.destination = destination.value_or(Destination::Nowhere);
    }
    if (const RtfWord* word = findRtfWord(token.text))
        word->apply(*this, token.hasNumber ? token.number : word->missingNumber);
}

void RtfInterpreter::followSymbol(QChar symbol) {
    switch (symbol.unicode()) {
    case u'\\':
    case u'{':
    case u'}':
        followText(QStringView(&symbol, 1));
        break;
    case u'~':
        insert(QChar::Nbsp);
        break;
    case u'_':
        insert(0x2011);
        break;
    case u'-':
        insert(QChar::SoftHyphen);
        break;
    case u'\r':
    case u'\n':
        endParagraph();
        break;
    default:
        break;
    }
}

void RtfInterpreter::followHexByte(int byte) {
    if (byte >= 0)
        insert(fromWindows1252(byte));
}

void RtfInterpreter::followText(QStringView text) {
    const qsizetype passed = std::min(m_fallbackLeft, text.size());
    m_fallbackLeft -= passed;
    const QStringView shown = text.sliced(passed);
    switch (m_state.destination) {
    case Destination::Body:
        m_result.append(shown, m_state.character);
        break;
    case Destination::FontTable:
        defineFonts(shown);
        break;
    case Destination::ColorTable:
        defineColors(shown);
        break;
    case Destination::Nowhere:
        break;
    }
}

// A name ends in ";".
void RtfInterpreter::defineFonts(QStringView text) {
    for (const QChar character : text) {
        if (character != u';') {
            m_fontName.append(character);
            continue;
        }
        m_result.fonts.insert(m_fontNumber, m_fontName.trimmed());
        m_fontName.clear();
    }
}

// An entry without components is the reader's own colour.
void RtfInterpreter::defineColors(QStringView text) {
    for (qsizetype entries = text.count(u';'); entries > 0; --entries) {
        m_colors.push_back(m_mixedColor);
        m_mixedColor.reset();
    }
}

void RtfInterpreter::mixColor(int shift, int component) {
    if (m_state.destination != Destination::ColorTable)
        return;
    const QRgb value = QRgb(std::clamp(component, 0, 255)) << shift;
    const QRgb others = m_mixedColor.value_or(qRgb(0, 0, 0)) & ~(QRgb(255) << shift);
    m_mixedColor = others | value;
}

std::optional<QRgb> RtfInterpreter::color(int number) const {
    const bool known = number >= 0 && size_t(number) < m_colors.size();
    return known ? m_colors[size_t(number)] : std::nullopt;
}

void RtfInterpreter::resetCharacter() {
    m_state.character = {.font = m_defaultFont, .halfPoints = defaultHalfPoints};
}

void RtfInterpreter::setDefaultFont(int number) {
    m_defaultFont = number;
    m_state.character.font = number;
}

void RtfInterpreter::selectFont(int number) {
    if (m_state.destination == Destination::FontTable)
        m_fontNumber = number;
    else
        m_state.character.font = number;
}

void RtfInterpreter::selectSize(int halfPoints) {
    const bool sensible = halfPoints > 0 && halfPoints <= largestHalfPoints;
    m_state.character.halfPoints = sensible ? halfPoints : defaultHalfPoints;
}

void RtfInterpreter::setTabDistance(int twips) {
    if (twips > 0 && twips <= largestTabDistance)
        m_result.tabDistance = twips;
}

void RtfInterpreter::insert(char16_t character) {
    followText(QStringView(&character, 1));
}

// Numbers above 32767 are written as negative ones by some; characters beyond 16 bits come as two.
void RtfInterpreter::insertUnicode(int number) {
    insert(char16_t(number & 0xFFFF));
    m_fallbackLeft = std::max(m_state.fallbackLength, 0);
}

void RtfInterpreter::endParagraph() {
    if (m_state.destination == Destination::Body)
        m_result.endParagraph(m_state.paragraph, m_state.character);
}
