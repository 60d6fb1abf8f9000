// Comparison of stored texts without regard to case, in every script, on their UTF-8 bytes as they
// stand in the file.
//
// Characters are folded one by one (simple folding), so "ß" is not "ss" and a text has as many
// characters as its folded form; final sigma is sigma. Accents count. A byte that belongs to no
// character, as in a damaged file, is like itself alone.
#pragma once

#include <QString>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A text in its folded form.
std::u32string folded(const QString& text);

// Where a stored text stands to a folded one: below 0, 0 or above 0.
int compareFolded(std::string_view text, const std::u32string& other);

// A run of characters that is looked for in texts, in time linear in the text.
class FoldedRun {
public:
    explicit FoldedRun(std::u32string characters);

    // Where the text goes on behind the run that it starts with; no value if it does not.
    std::optional<std::string_view> behindStart(std::string_view text) const;

    // Where the text goes on behind the first such run in it; no value if it has none.
    std::optional<std::string_view> behindFirst(std::string_view text) const;

    bool endsText(std::string_view text) const;

private:
    // One byte of a text, in either case if it is a letter.
    struct Probe {
        unsigned char byte = 0;
        unsigned char caseBit = 0;
        int fits(unsigned char other) const { return (other | caseBit) == byte; }
    };
    enum class Fit { Yes, No, Unclear };

    void buildFallbacks();
    void noteStarts();
    void chooseProbes();
    size_t nextState(size_t state, char32_t character) const;
    std::optional<std::string_view> behindFirstDecoded(std::string_view text) const;
    size_t nextCandidate(std::string_view text, size_t from) const;
    Fit fitAround(std::string_view text, size_t candidate) const;

    std::u32string m_characters;
    std::vector<size_t> m_fallbacks;   // where a run that broke off may go on (Knuth-Morris-Pratt)
    std::array<bool, 256> m_isStart{}; // the bytes with which the run may begin in a text
    Probe m_first;                     // of two neighbours in the run, if m_hasProbes
    Probe m_second;
    size_t m_probePlace = 0;
    bool m_hasProbes = false;
};

// A pattern of LIKE: "*" for any run of characters, every other character for itself. It covers
// the whole text.
class LikePattern {
public:
    explicit LikePattern(const QString& pattern);

    bool matches(std::string_view text) const;

private:
    std::optional<FoldedRun> m_start;
    std::vector<FoldedRun> m_middle;
    std::optional<FoldedRun> m_end;
    bool m_hasWildcard = false;
};
