#include "richtext/RichDocument.h"

#include "richtext/FontFamilies.h"

#include <QHash>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextOption>
#include <algorithm>

namespace {

constexpr int widestIndent = 31680; // twips, the widest page that word processors know
constexpr int outdent = 300;        // twips, the margin of the page

// Writes the paragraphs of a text behind a cursor. A page has few formats and many runs, so each
// format is made once.
class Filler {
public:
    Filler(QTextCursor& cursor, const RichText& content)
        : m_cursor(cursor)
        , m_content(content) {}

    void fill();

private:
    void writeRuns(qsizetype length);
    void passLineEnd();
    const CharacterStyle& style() const { return m_content.runs[m_run].style; }
    const QTextCharFormat& format(const CharacterStyle& style);
    QTextCharFormat makeFormat(const CharacterStyle& style) const;

    QTextCursor& m_cursor;
    const RichText& m_content;
    QHash<CharacterStyle, QTextCharFormat> m_formats;
    qsizetype m_position = 0;
    qsizetype m_run = 0;
    qsizetype m_usedOfRun = 0;
};

void Filler::fill() {
    bool first = true;
    for (const RichText::Paragraph& paragraph : m_content.paragraphs) {
        const QTextCharFormat characters =
            m_run < m_content.runs.size() ? format(style()) : m_cursor.charFormat();
        if (first) {
            m_cursor.setBlockFormat(blockFormat(paragraph.style));
            m_cursor.setBlockCharFormat(characters);
        } else {
            m_cursor.insertBlock(blockFormat(paragraph.style), characters);
        }
        first = false;
        writeRuns(paragraph.length);
        passLineEnd();
    }
}

void Filler::writeRuns(qsizetype length) {
    while (length > 0) {
        const RichText::Run& run = m_content.runs[m_run];
        const qsizetype piece = std::min(length, run.length - m_usedOfRun);
        m_cursor.insertText(m_content.text.sliced(m_position, piece), format(run.style));
        m_position += piece;
        m_usedOfRun += piece;
        length -= piece;
        if (m_usedOfRun == run.length) {
            ++m_run;
            m_usedOfRun = 0;
        }
    }
}

void Filler::passLineEnd() {
    if (m_run == m_content.runs.size())
        return;
    ++m_position;
    if (++m_usedOfRun == m_content.runs[m_run].length) {
        ++m_run;
        m_usedOfRun = 0;
    }
}

const QTextCharFormat& Filler::format(const CharacterStyle& style) {
    const auto known = m_formats.constFind(style);
    return known != m_formats.cend() ? *known : *m_formats.insert(style, makeFormat(style));
}

QTextCharFormat Filler::makeFormat(const CharacterStyle& style) const {
    QTextCharFormat format;
    const QString family = m_content.fonts.value(style.font);
    if (!family.isEmpty())
        setFamily(format, family);
    if (style.halfPoints > 0)
        format.setFontPointSize(style.halfPoints / 2.0);
    if (style.bold)
        format.setFontWeight(QFont::Bold);
    if (style.italic)
        format.setFontItalic(true);
    if (style.underline)
        format.setFontUnderline(true);
    if (style.strikeOut)
        format.setFontStrikeOut(true);
    if (style.color)
        format.setForeground(QColor(*style.color));
    if (style.background)
        format.setBackground(QColor(*style.background));
    return format;
}

void setTabDistance(QTextDocument& document, int twips) {
    QTextOption option = document.defaultTextOption();
    const double distance = pixelsFromTwips(twips);
    if (qFuzzyCompare(option.tabStopDistance(), distance))
        return;
    option.setTabStopDistance(distance);
    document.setDefaultTextOption(option);
}

} // namespace

int twipsFromPixels(double pixels) {
    return qRound(pixels * 15.0);
}

void fillDocument(QTextDocument& document, const RichText& content) {
    const bool undo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    setTabDistance(document, content.tabDistance);
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    cursor.setCharFormat({});
    Filler(cursor, content).fill();
    cursor.endEditBlock();
    document.setUndoRedoEnabled(undo);
}

QTextBlockFormat blockFormat(const ParagraphStyle& style) {
    const int left = std::clamp(style.leftIndent, 0, widestIndent);
    const int right = std::clamp(style.rightIndent, 0, widestIndent);
    const int first = std::clamp(style.firstLineIndent, -left - outdent, widestIndent);
    QTextBlockFormat format;
    format.setLineHeight(lineSpacing, QTextBlockFormat::ProportionalHeight);
    if (left != 0)
        format.setLeftMargin(pixelsFromTwips(left));
    if (right != 0)
        format.setRightMargin(pixelsFromTwips(right));
    if (first != 0)
        format.setTextIndent(pixelsFromTwips(first));
    if (style.alignment != Qt::AlignLeft)
        format.setAlignment(style.alignment);
    return format;
}

void setFamily(QTextCharFormat& format, const QString& family) {
    const QString shown = availableFamily(family);
    format.setFontFamilies({shown});
    if (shown != family)
        format.setProperty(wantedFamilyProperty, family);
    else
        format.clearProperty(wantedFamilyProperty);
}

QString documentText(const QTextDocument& document) {
    QString text = document.toRawText();
    for (QChar& character : text) {
        if (character == QChar::ParagraphSeparator || character == QChar::LineSeparator)
            character = u'\n';
    }
    return text;
}
