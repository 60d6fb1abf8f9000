#include "richtext/RtfWords.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

using Rtf = RtfInterpreter;

template <char16_t Character>
void insert(Rtf& rtf, int) {
    rtf.insert(Character);
}

template <bool CharacterStyle::*Member>
void toggle(Rtf& rtf, int number) {
    rtf.character().*Member = number != 0;
}

template <Qt::AlignmentFlag Alignment>
void align(Rtf& rtf, int) {
    rtf.paragraph().alignment = Alignment;
}

template <int ParagraphStyle::*Member>
void indent(Rtf& rtf, int twips) {
    rtf.paragraph().*Member = twips;
}

template <int Shift>
void mix(Rtf& rtf, int component) {
    rtf.mixColor(Shift, component);
}

void setBackground(Rtf& rtf, int number) {
    rtf.character().background = rtf.color(number);
}

void endParagraph(Rtf& rtf, int) {
    rtf.endParagraph();
}

constexpr auto words = std::to_array<RtfWord>({
    {"b", 1, toggle<&CharacterStyle::bold>},
    {"bin", 0, [](Rtf& rtf, int length) { rtf.skipBinary(length); }},
    {"blue", 0, mix<0>},
    {"bullet", 0, insert<0x2022>},
    {"cb", 0, setBackground},
    {"cell", 0, insert<u'\t'>},
    {"cf", 0, [](Rtf& rtf, int number) { rtf.character().color = rtf.color(number); }},
    {"deff", 0, [](Rtf& rtf, int number) { rtf.setDefaultFont(number); }},
    {"deftab", 720, [](Rtf& rtf, int twips) { rtf.setTabDistance(twips); }},
    {"emdash", 0, insert<0x2014>},
    {"emspace", 0, insert<0x2003>},
    {"endash", 0, insert<0x2013>},
    {"enspace", 0, insert<0x2002>},
    {"f", 0, [](Rtf& rtf, int number) { rtf.selectFont(number); }},
    {"fi", 0, indent<&ParagraphStyle::firstLineIndent>},
    {"fs", 0, [](Rtf& rtf, int halfPoints) { rtf.selectSize(halfPoints); }},
    {"green", 0, mix<8>},
    {"highlight", 0, setBackground},
    {"i", 1, toggle<&CharacterStyle::italic>},
    {"ldblquote", 0, insert<0x201C>},
    {"li", 0, indent<&ParagraphStyle::leftIndent>},
    {"line", 0, insert<QChar::LineSeparator>},
    {"lquote", 0, insert<0x2018>},
    {"ltrmark", 0, insert<0x200E>},
    {"page", 0, endParagraph},
    {"par", 0, endParagraph},
    {"pard", 0, [](Rtf& rtf, int) { rtf.resetParagraph(); }},
    {"plain", 0, [](Rtf& rtf, int) { rtf.resetCharacter(); }},
    {"qc", 0, align<Qt::AlignHCenter>},
    {"qj", 0, align<Qt::AlignJustify>},
    {"ql", 0, align<Qt::AlignLeft>},
    {"qr", 0, align<Qt::AlignRight>},
    {"rdblquote", 0, insert<0x201D>},
    {"red", 0, mix<16>},
    {"ri", 0, indent<&ParagraphStyle::rightIndent>},
    {"row", 0, endParagraph},
    {"rquote", 0, insert<0x2019>},
    {"rtlmark", 0, insert<0x200F>},
    {"sect", 0, endParagraph},
    {"strike", 1, toggle<&CharacterStyle::strikeOut>},
    {"tab", 0, insert<u'\t'>},
    {"u", 0, [](Rtf& rtf, int number) { rtf.insertUnicode(number); }},
    {"uc", 1, [](Rtf& rtf, int length) { rtf.setFallbackLength(length); }},
    {"ul", 1, toggle<&CharacterStyle::underline>},
    {"ulnone", 0, toggle<&CharacterStyle::underline>},
    {"zwj", 0, insert<0x200D>},
    {"zwnj", 0, insert<0x200C>},
});

// Their text is no part of the page.
constexpr auto hiddenDestinations = std::to_array<std::string_view>({
    "annotation", "atnauthor", "atnid",      "bkmkend", "bkmkstart", "filetbl", "fldinst",
    "footer",     "footerf",   "footerl",    "footerr", "footnote",  "header",  "headerf",
    "headerl",    "headerr",   "info",       "object",  "pict",      "private", "revtbl",
    "rxe",        "shppict",   "stylesheet", "tc",      "themedata", "txe",     "xe",
});

// The words are ASCII, so each of their characters is one byte; a longer word is in no table.
struct NarrowName {
    explicit NarrowName(QStringView name)
        : length(std::min<size_t>(size_t(name.size()), letters.size())) {
        for (size_t i = 0; i < length; ++i)
            letters[i] = char(name[qsizetype(i)].unicode());
    }

    std::string_view view() const { return {letters.data(), length}; }

    std::array<char, 32> letters;
    size_t length;
};

static_assert(std::ranges::is_sorted(words, {}, &RtfWord::name));

} // namespace

const RtfWord* findRtfWord(QStringView name) {
    const NarrowName narrow(name);
    const auto found = std::ranges::lower_bound(words, narrow.view(), {}, &RtfWord::name);
    return found != words.end() && found->name == narrow.view() ? &*found : nullptr;
}

std::optional<RtfInterpreter::Destination> rtfDestination(QStringView name) {
    const NarrowName narrow(name);
    if (narrow.view() == "fonttbl")
        return RtfInterpreter::Destination::FontTable;
    if (narrow.view() == "colortbl")
        return RtfInterpreter::Destination::ColorTable;
    if (std::ranges::find(hiddenDestinations, narrow.view()) != hiddenDestinations.end())
        return RtfInterpreter::Destination::Nowhere;
    return {};
}
