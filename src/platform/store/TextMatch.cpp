#include "store/TextMatch.h"

#include <QChar>
#include <array>
#include <limits>

namespace {

// Bytes that belong to no character stand above all characters.
constexpr char32_t StrayBytes = 0x110000;

// Half of a surrogate pair, which no text holds.
constexpr char32_t NoCharacter = StrayBytes + 0x100;

// The least byte that begins a character of several bytes.
constexpr unsigned char LeadBytes = 0xC2;

// Folding by table up to here covers the scripts that know case and are in use.
constexpr char32_t TableEnd = 0x2200;

const std::array<char16_t, TableEnd>& foldTable() {
    static const auto table = [] {
        std::array<char16_t, TableEnd> made{};
        for (char32_t character = 0; character < TableEnd; ++character)
            made[character] = static_cast<char16_t>(QChar::toCaseFolded(character));
        return made;
    }();
    return table;
}

// Reads a text as folded characters, one by one.
class FoldedReader {
public:
    explicit FoldedReader(std::string_view text)
        : m_at(text.data())
        , m_end(text.data() + text.size()) {}

    bool atEnd() const { return m_at == m_end; }
    std::string_view rest() const { return {m_at, static_cast<size_t>(m_end - m_at)}; }

    // Goes on to the next byte with which a character begins that is looked for.
    void skipTo(const std::array<bool, 256>& isStart) {
        while (!atEnd() && !isStart[static_cast<unsigned char>(*m_at)])
            ++m_at;
    }

    char32_t next() {
        const char32_t character = decode();
        if (character < TableEnd)
            return m_table[character];
        return character < StrayBytes ? QChar::toCaseFolded(character) : character;
    }

private:
    char32_t decode() {
        const auto lead = static_cast<unsigned char>(*m_at++);
        if (lead < 0x80)
            return lead;
        if (lead >= LeadBytes && lead < 0xE0)
            return decodeRest(lead, lead & 0x1Fu, 1, 0x80);
        if (lead >= 0xE0 && lead < 0xF0)
            return decodeRest(lead, lead & 0x0Fu, 2, 0x800);
        if (lead >= 0xF0 && lead < 0xF5)
            return decodeRest(lead, lead & 0x07u, 3, 0x10000);
        return StrayBytes + lead;
    }

    char32_t decodeRest(unsigned char lead, char32_t character, int count, char32_t smallest) {
        if (m_end - m_at < count)
            return StrayBytes + lead;
        for (int index = 0; index < count; ++index) {
            const auto byte = static_cast<unsigned char>(m_at[index]);
            if ((byte & 0xC0) != 0x80)
                return StrayBytes + lead;
            character = (character << 6) | (byte & 0x3Fu);
        }
        if (character < smallest || character >= StrayBytes)
            return StrayBytes + lead;
        m_at += count;
        return character;
    }

    const std::array<char16_t, TableEnd>& m_table = foldTable();
    const char* m_at;
    const char* m_end;
};

// How many bytes may be compared around candidates in one text.
constexpr size_t LargestEffort = 4096;

// How rare a letter is in running text, the rarest first; other characters are rarer than "t".
constexpr std::u32string_view RareToCommon = U"qzxjvkbpgwyfmculdrhsinoate ";

size_t commonness(char32_t character) {
    const size_t place = RareToCommon.find(character);
    return place == std::u32string_view::npos ? 8 : place;
}

// Whether one byte, or its capital, is all that such a character can be in a text. "k" and "s"
// have a third form each: the sign for kelvin and the long s.
bool isOneByte(char32_t character) {
    return character < 0x80 && character != U'k' && character != U's';
}

bool isLetter(char32_t character) {
    return character >= U'a' && character <= U'z';
}

// The character at a place, which goes on behind it.
char32_t characterAt(QStringView text, qsizetype& place) {
    const QChar unit = text[place++];
    if (!unit.isSurrogate())
        return unit.unicode();
    if (unit.isHighSurrogate() && place < text.size() && text[place].isLowSurrogate())
        return QChar::surrogateToUcs4(unit, text[place++]);
    return NoCharacter;
}

} // namespace

std::u32string folded(const QString& text) {
    std::u32string characters;
    characters.reserve(static_cast<size_t>(text.size()));
    for (qsizetype place = 0; place < text.size();) {
        const char32_t character = characterAt(text, place);
        characters += character < StrayBytes ? QChar::toCaseFolded(character) : character;
    }
    return characters;
}

int compareFolded(std::string_view text, const std::u32string& other) {
    FoldedReader reader(text);
    for (const char32_t character : other) {
        if (reader.atEnd())
            return -1;
        const char32_t found = reader.next();
        if (found != character)
            return found < character ? -1 : 1;
    }
    return reader.atEnd() ? 0 : 1;
}

FoldedRun::FoldedRun(std::u32string characters)
    : m_characters(std::move(characters)) {
    buildFallbacks();
    noteStarts();
    chooseProbes();
}

void FoldedRun::buildFallbacks() {
    m_fallbacks.assign(m_characters.size() + 1, 0);
    for (size_t length = 1; length < m_characters.size(); ++length)
        m_fallbacks[length + 1] = nextState(m_fallbacks[length], m_characters[length]);
}

// The first byte of every form of the first character. Of the forms beyond ASCII it is known only
// that they begin with a lead byte.
void FoldedRun::noteStarts() {
    if (m_characters.empty())
        return;
    const char32_t character = m_characters.front();
    for (size_t byte = 0; byte < m_isStart.size(); ++byte)
        m_isStart[byte] = byte < 0x80 ? foldTable()[byte] == character
                                      : byte >= LeadBytes && !isOneByte(character);
}

// The two neighbours that are met together least often: most texts are then turned down without
// being decoded.
void FoldedRun::chooseProbes() {
    const auto probe = [](char32_t character) {
        return Probe{
            static_cast<unsigned char>(character),
            static_cast<unsigned char>(isLetter(character) ? 0x20 : 0)};
    };
    size_t least = std::numeric_limits<size_t>::max();
    for (size_t place = 0; place + 1 < m_characters.size(); ++place) {
        const char32_t first = m_characters[place];
        const char32_t second = m_characters[place + 1];
        const size_t common = (commonness(first) + 1) * (commonness(second) + 1);
        if (!isOneByte(first) || !isOneByte(second) || common >= least)
            continue;
        least = common;
        m_first = probe(first);
        m_second = probe(second);
        m_probePlace = place;
        m_hasProbes = true;
    }
}

// How many characters of the run stand at the end of what was read, now that one more was.
size_t FoldedRun::nextState(size_t state, char32_t character) const {
    if (state == m_characters.size())
        state = m_fallbacks[state];
    while (state > 0 && m_characters[state] != character)
        state = m_fallbacks[state];
    return m_characters[state] == character ? state + 1 : 0;
}

std::optional<std::string_view> FoldedRun::behindStart(std::string_view text) const {
    FoldedReader reader(text);
    for (const char32_t character : m_characters) {
        if (reader.atEnd() || reader.next() != character)
            return std::nullopt;
    }
    return reader.rest();
}

// Looks around every candidate, as long as that stays cheap; what it leaves open is decoded.
std::optional<std::string_view> FoldedRun::behindFirst(std::string_view text) const {
    if (!m_hasProbes)
        return behindFirstDecoded(text);
    size_t effort = 0;
    for (size_t candidate = nextCandidate(text, 0); candidate != std::string_view::npos;
         candidate = nextCandidate(text, candidate + 1)) {
        effort += m_characters.size();
        const Fit fit = effort > LargestEffort ? Fit::Unclear : fitAround(text, candidate);
        if (fit == Fit::Yes)
            return text.substr(candidate - m_probePlace + m_characters.size());
        if (fit == Fit::Unclear)
            return behindFirstDecoded(text);
    }
    return std::nullopt;
}

std::optional<std::string_view> FoldedRun::behindFirstDecoded(std::string_view text) const {
    FoldedReader reader(text);
    size_t state = 0;
    while (true) {
        if (state == 0)
            reader.skipTo(m_isStart);
        if (reader.atEnd())
            return std::nullopt;
        state = nextState(state, reader.next());
        if (state == m_characters.size())
            return reader.rest();
    }
}

// The next place where both probes fit. Looks at blocks without a branch inside, which compilers
// turn into vector instructions; the last block overlaps the one before it. Only a block with a hit
// is gone through singly.
size_t FoldedRun::nextCandidate(std::string_view text, size_t from) const {
    constexpr size_t Block = 64;
    const auto* const bytes = reinterpret_cast<const unsigned char*>(text.data());
    const size_t end = text.empty() ? 0 : text.size() - 1;
    const auto fitsAt = [bytes, first = m_first, second = m_second](size_t place) {
        return first.fits(bytes[place]) & second.fits(bytes[place + 1]);
    };
    const auto hasHit = [&](size_t start) {
        unsigned char hits = 0;
        for (size_t place = start; place < start + Block; ++place)
            hits |= static_cast<unsigned char>(fitsAt(place));
        return hits != 0;
    };
    while (from + Block <= end && !hasHit(from))
        from += Block;
    if (from + Block > end && end >= Block && !hasHit(end - Block))
        return std::string_view::npos;
    while (from < end && !fitsAt(from))
        ++from;
    return from < end ? from : std::string_view::npos;
}

// Compares byte by byte from the candidate outwards: where all is ASCII that is exact, and the
// first byte that is not is met before anything behind it could mislead.
FoldedRun::Fit FoldedRun::fitAround(std::string_view text, size_t candidate) const {
    if (candidate < m_probePlace)
        return Fit::No;
    const size_t start = candidate - m_probePlace;
    const auto fitAt = [&](size_t place) {
        const auto byte = static_cast<unsigned char>(text[start + place]);
        const char32_t character = m_characters[place];
        if ((byte | character) >= 0x80)
            return Fit::Unclear;
        return foldTable()[byte] == character ? Fit::Yes : Fit::No;
    };
    Fit fit = Fit::Yes;
    for (size_t place = m_probePlace; place > 0 && fit == Fit::Yes; --place)
        fit = fitAt(place - 1);
    for (size_t place = m_probePlace + 2; place < m_characters.size() && fit == Fit::Yes; ++place)
        fit = start + place < text.size() ? fitAt(place) : Fit::No;
    return fit;
}

bool FoldedRun::endsText(std::string_view text) const {
    if (m_characters.empty())
        return true;
    size_t state = 0;
    for (FoldedReader reader(text); !reader.atEnd();)
        state = nextState(state, reader.next());
    return state == m_characters.size();
}

LikePattern::LikePattern(const QString& pattern) {
    const std::u32string characters = folded(pattern);
    size_t from = 0;
    for (size_t place = characters.find(U'*'); place != std::u32string::npos;
         place = characters.find(U'*', from)) {
        std::u32string run = characters.substr(from, place - from);
        if (!run.empty() && !m_hasWildcard)
            m_start.emplace(std::move(run));
        else if (!run.empty())
            m_middle.emplace_back(std::move(run));
        m_hasWildcard = true;
        from = place + 1;
    }
    m_end.emplace(characters.substr(from));
}

bool LikePattern::matches(std::string_view text) const {
    if (!m_hasWildcard) {
        const std::optional<std::string_view> rest = m_end->behindStart(text);
        return rest && rest->empty();
    }
    std::optional<std::string_view> rest = m_start ? m_start->behindStart(text) : text;
    for (size_t run = 0; run < m_middle.size() && rest; ++run)
        rest = m_middle[run].behindFirst(*rest);
    return rest && m_end->endsText(*rest);
}
