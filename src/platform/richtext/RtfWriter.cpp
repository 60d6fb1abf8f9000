#include "richtext/RtfWriter.h"

#include "richtext/RichDocument.h"

#include <QFontInfo>
#include <QTextBlock>
#include <QTextFragment>

using namespace Qt::StringLiterals;

namespace {

void appendCharacter(QString& rtf, QChar character) {
    const char16_t code = character.unicode();
    if (code == u'\\' || code == u'{' || code == u'}')
        (rtf += u'\\') += character;
    else if (code >= 0x20 && code < 0x7F)
        rtf += character;
    else if (code == u'\t')
        rtf += R"(\tab )"_L1;
    else if (code == QChar::LineSeparator)
        rtf += R"(\line )"_L1;
    else if (code < 0x80)
        rtf += uR"(\'%1)"_s.arg(code, 2, 16, QChar(u'0'));
    else
        rtf += uR"(\u%1?)"_s.arg(qint16(code));
}

void appendText(QString& rtf, QStringView text) {
    for (const QChar character : text)
        appendCharacter(rtf, character);
}

// The tables stand before the text that refers to them, so the body is written first.
class Writer {
public:
    explicit Writer(const QTextDocument& document)
        : m_document(document) {
        fontNumber(document.defaultFont().family());
    }

    QString write();

private:
    void writeBlock(const QTextBlock& block);
    void writeRun(const QTextFragment& fragment);
    void writeWord(QLatin1StringView word, qsizetype number);
    void writeCharacterFormat(const QTextCharFormat& format);
    void writeEmphasis(const QFont& font);
    void writeColor(QLatin1StringView word, const QBrush& brush);
    QString header() const;
    qsizetype fontNumber(const QString& family);
    qsizetype colorNumber(const QColor& color);

    const QTextDocument& m_document;
    QString m_body;
    QStringList m_fonts;
    QList<QRgb> m_colors;
};

QString Writer::write() {
    for (QTextBlock block = m_document.begin(); block.isValid(); block = block.next())
        writeBlock(block);
    return header() + m_body + u'}';
}

// Each paragraph ends in its mark, the last one too: the reader opens none behind the last mark.
void Writer::writeBlock(const QTextBlock& block) {
    const QTextBlockFormat format = block.blockFormat();
    m_body += R"(\pard)"_L1;
    const auto writeIndent = [&](QLatin1StringView word, double pixels) {
        if (const int twips = twipsFromPixels(pixels))
            writeWord(word, twips);
    };
    writeIndent("li"_L1, format.leftMargin());
    writeIndent("ri"_L1, format.rightMargin());
    writeIndent("fi"_L1, format.textIndent());
    const Qt::Alignment alignment = format.alignment();
    if (alignment & Qt::AlignHCenter)
        m_body += R"(\qc)"_L1;
    else if (alignment & Qt::AlignJustify)
        m_body += R"(\qj)"_L1;
    else if (alignment & Qt::AlignRight)
        m_body += R"(\qr)"_L1;
    for (auto piece = block.begin(); !piece.atEnd(); ++piece)
        writeRun(piece.fragment());
    m_body += "\\par\n"_L1;
}

void Writer::writeRun(const QTextFragment& fragment) {
    m_body += u'{';
    writeCharacterFormat(fragment.charFormat());
    m_body += u' ';
    appendText(m_body, fragment.text());
    m_body += u'}';
}

void Writer::writeCharacterFormat(const QTextCharFormat& format) {
    const QFont font = format.font().resolve(m_document.defaultFont());
    const QString wanted = format.stringProperty(wantedFamilyProperty);
    writeWord("f"_L1, fontNumber(wanted.isEmpty() ? font.family() : wanted));
    const double points = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
    writeWord("fs"_L1, qRound(points * 2));
    writeEmphasis(font);
    writeColor("cf"_L1, format.foreground());
    writeColor("highlight"_L1, format.background());
}

void Writer::writeEmphasis(const QFont& font) {
    if (font.weight() >= QFont::DemiBold)
        m_body += R"(\b)"_L1;
    if (font.italic())
        m_body += R"(\i)"_L1;
    if (font.underline())
        m_body += R"(\ul)"_L1;
    if (font.strikeOut())
        m_body += R"(\strike)"_L1;
}

void Writer::writeColor(QLatin1StringView word, const QBrush& brush) {
    if (brush.style() != Qt::NoBrush)
        writeWord(word, colorNumber(brush.color()));
}

void Writer::writeWord(QLatin1StringView word, qsizetype number) {
    (m_body += u'\\') += word;
    m_body += QString::number(number);
}

// Colour 0 is left to the reader: the text's own colour where none was given.
QString Writer::header() const {
    QString result = uR"({\rtf1\ansi\ansicpg1252\uc1\deff0)"_s;
    const double tabDistance = m_document.defaultTextOption().tabStopDistance();
    result += uR"(\deftab%1{\fonttbl)"_s.arg(twipsFromPixels(tabDistance));
    for (qsizetype i = 0; i < m_fonts.size(); ++i) {
        result += uR"({\f%1\fnil )"_s.arg(i);
        appendText(result, QString(m_fonts[i]).remove(u';'));
        result += ";}"_L1;
    }
    result += R"(}{\colortbl;)"_L1;
    const QString entry = uR"(\red%1\green%2\blue%3;)"_s;
    for (const QRgb color : m_colors)
        result += entry.arg(qRed(color)).arg(qGreen(color)).arg(qBlue(color));
    return result + "}\n"_L1;
}

qsizetype Writer::fontNumber(const QString& family) {
    const qsizetype known = m_fonts.indexOf(family);
    if (known >= 0)
        return known;
    m_fonts.append(family);
    return m_fonts.size() - 1;
}

qsizetype Writer::colorNumber(const QColor& color) {
    const qsizetype known = m_colors.indexOf(color.rgb());
    if (known >= 0)
        return known + 1;
    m_colors.append(color.rgb());
    return m_colors.size();
}

} // namespace

QString writeRtf(const QTextDocument& document) {
    return Writer(document).write();
}
