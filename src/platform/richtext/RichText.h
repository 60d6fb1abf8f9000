// A formatted text as a value: what the RTF reader makes and what fills a text document. It knows
// neither widgets nor fonts of the machine.
#pragma once

#include <QHash>
#include <QList>
#include <QRgb>
#include <QString>
#include <optional>

struct CharacterStyle {
    int font = -1;      // key of RichText::fonts; a key without a name is the box's own font
    int halfPoints = 0; // 0 is the size of the box's own font
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
    std::optional<QRgb> color = {};      // none is the box's own text colour
    std::optional<QRgb> background = {}; // none is the page

    bool operator==(const CharacterStyle&) const = default;
};

size_t qHash(const CharacterStyle& style, size_t seed = 0) noexcept;

// Indents are twips from the margin; the first line's is relative to the left indent.
struct ParagraphStyle {
    int leftIndent = 0;
    int rightIndent = 0;
    int firstLineIndent = 0;
    Qt::AlignmentFlag alignment = Qt::AlignLeft;

    bool operator==(const ParagraphStyle&) const = default;
};

// `runs` cover the text without gaps, line ends included. Each entry of `paragraphs` is one
// paragraph: its length without the line end behind it; there is always at least one.
struct RichText {
    struct Run {
        qsizetype length = 0;
        CharacterStyle style;
    };
    struct Paragraph {
        qsizetype length = 0;
        ParagraphStyle style;
    };

    QString text; // paragraphs end in "\n", lines within them in U+2028
    QList<Run> runs;
    QList<Paragraph> paragraphs;
    QHash<int, QString> fonts; // families by the text's own numbers
    int tabDistance = 720;     // twips

    // `piece` becomes part of the last paragraph; a line end in it breaks only the line.
    void append(QStringView piece, const CharacterStyle& style);

    // The paragraph under construction is complete, and the next begins.
    void endParagraph(const ParagraphStyle& style, const CharacterStyle& character);

    // The last paragraph is complete, and the text with it.
    void finish(const ParagraphStyle& style);

    // The same, but a last paragraph of nothing but blanks is left out: a paragraph mark ends a
    // paragraph, it does not open one.
    void finishAtMark(const ParagraphStyle& style);

private:
    void cover(qsizetype length, const CharacterStyle& style);
    void cut(qsizetype length);

    qsizetype m_paragraphStart = 0;
};

// A text without formats. "\r\n", "\r" and U+2029 are line ends too.
RichText plainRichText(const QString& text, const ParagraphStyle& style = {});

// Whether the text holds a word so long that the search for its end costs more than a layout may.
bool hasEndlessWord(const QString& text);
