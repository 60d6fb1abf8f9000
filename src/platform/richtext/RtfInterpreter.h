// Follows the tokens of a text in RTF with the state that they set. The words of RTF (RtfWords.h)
// are written in terms of its operations.
#pragma once

#include "richtext/RichText.h"
#include "richtext/RtfTokenizer.h"

#include <optional>
#include <vector>

class RtfInterpreter {
public:
    enum class Destination { Body, FontTable, ColorTable, Nowhere };

    explicit RtfInterpreter(QStringView rtf);

    RichText read();

    CharacterStyle& character() { return m_state.character; }
    ParagraphStyle& paragraph() { return m_state.paragraph; }

    void resetCharacter();
    void resetParagraph() { m_state.paragraph = {}; }
    void setDefaultFont(int number);
    void selectFont(int number);
    void selectSize(int halfPoints);
    void setTabDistance(int twips);
    void mixColor(int shift, int component);
    std::optional<QRgb> color(int number) const;

    void insert(char16_t character);
    void insertUnicode(int number);
    void setFallbackLength(int length) { m_state.fallbackLength = length; }
    void endParagraph();
    void skipBinary(int length) { m_tokens.skip(length); }

private:
    struct State {
        CharacterStyle character;
        ParagraphStyle paragraph;
        Destination destination = Destination::Body;
        int fallbackLength = 1; // characters that stand in for a \u in readers without Unicode
    };

    void follow(const RtfToken& token);
    void openGroup();
    void closeGroup();
    void followWord(const RtfToken& token);
    void followSymbol(QChar symbol);
    void followHexByte(int byte);
    void followText(QStringView text);
    void defineFonts(QStringView text);
    void defineColors(QStringView text);

    RtfTokenizer m_tokens;
    RichText m_result;
    State m_state;
    std::vector<State> m_groups;
    qsizetype m_unsavedGroups = 0;
    bool m_atGroupStart = false;
    bool m_starred = false; // the group is for readers that know its word
    qsizetype m_fallbackLeft = 0;
    int m_defaultFont = 0;
    int m_fontNumber = 0;
    QString m_fontName;
    std::vector<std::optional<QRgb>> m_colors;
    std::optional<QRgb> m_mixedColor;
};
