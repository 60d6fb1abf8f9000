#include "readers/TextLines.h"

#include "Interruption.h"
#include "basic/Error.h"

#include <QFileInfo>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 ChunkSize = 64 << 10;
constexpr qsizetype LongestLine = 8'000'000; // characters; some texts have a book in one

// The characters 128 to 159 of Windows' own Latin code page.
constexpr char16_t WindowsCharacters[] = u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021"
                                         u"\u02C6\u2030\u0160\u2039\u0152\u008D\u017D\u008F"
                                         u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014"
                                         u"\u02DC\u2122\u0161\u203A\u0153\u009D\u017E\u0178";

// UTF-16 without a mark: letters of Latin script have a null byte each, on the same side.
std::optional<QStringConverter::Encoding> unmarkedUtf16(const QByteArray& head) {
    qsizetype nulls[2]{};
    for (qsizetype at = 0; at < head.size(); ++at)
        nulls[at % 2] += head[at] == '\0' ? 1 : 0;
    if (nulls[1] > head.size() / 4 && nulls[0] == 0)
        return QStringConverter::Utf16LE;
    if (nulls[0] > head.size() / 4 && nulls[1] == 0)
        return QStringConverter::Utf16BE;
    return std::nullopt;
}

bool isUtf8(QFile& file) {
    QStringDecoder decoder(QStringConverter::Utf8);
    while (!file.atEnd()) {
        const QString text = decoder(file.read(ChunkSize));
        if (text.isNull() && file.error() != QFileDevice::NoError)
            return true;
        if (decoder.hasError())
            return false;
        checkInterrupt();
    }
    return true;
}

} // namespace

TextLines::TextLines(const QString& path)
    : m_file(path)
    , m_name(QFileInfo(path).fileName()) {
    if (!m_file.open(QIODevice::ReadOnly))
        throw Error(
            Error::FileNotFound, u"%1 cannot be read: %2."_s.arg(m_name, m_file.errorString()));
    findEncoding();
}

void TextLines::findEncoding() {
    const QByteArray head = m_file.peek(1024);
    std::optional<QStringConverter::Encoding> encoding = QStringConverter::encodingForData(head);
    if (!encoding)
        encoding = unmarkedUtf16(head);
    if (!encoding) {
        m_isLatin = !isUtf8(m_file);
        m_file.seek(0);
    }
    m_decoder = QStringDecoder(encoding.value_or(QStringConverter::Utf8));
}

std::optional<QString> TextLines::peek() {
    if (!m_peeked) {
        m_peeked = next();
        if (m_peeked)
            --m_number;
    }
    return m_peeked;
}

std::optional<QString> TextLines::next() {
    if (m_peeked) {
        ++m_number;
        return std::exchange(m_peeked, std::nullopt);
    }
    for (;;) {
        if (const std::optional<qsizetype> end = findEnd())
            return takeLine(*end - m_at);
        if (m_buffer.size() - m_at > LongestLine)
            throw Error(
                Error::NotADatabase,
                u"%1:%2: the line is longer than %3 characters"_s.arg(
                    m_name, QString::number(m_number + 1), QString::number(LongestLine)));
        if (!fill())
            break;
    }
    if (m_at == m_buffer.size())
        return std::nullopt;
    m_isCutOff = true;
    return takeLine(m_buffer.size() - m_at);
}

// The end of the next line; nothing while it has not been read yet. A carriage return at the very
// end of what was read may be half of an end.
std::optional<qsizetype> TextLines::findEnd() {
    const auto isEnd = [](QChar each) { return each == u'\n' || each == u'\r'; };
    const auto from = m_buffer.cbegin() + std::max(m_at, m_searched);
    const auto* end = std::find_if(from, m_buffer.cend(), isEnd);
    m_searched = end - m_buffer.cbegin();
    if (end == m_buffer.cend() || (end + 1 == m_buffer.cend() && !m_file.atEnd()))
        return std::nullopt;
    return m_searched;
}

QString TextLines::takeLine(qsizetype length) {
    QString line = m_buffer.sliced(m_at, length);
    m_at += length;
    if (QStringView(m_buffer).sliced(m_at).startsWith(u"\r\n"))
        m_at += 2;
    else if (m_at < m_buffer.size())
        ++m_at;
    ++m_number;
    return line;
}

// Whether there was more to read.
bool TextLines::fill() {
    checkInterrupt();
    const QByteArray bytes = m_file.read(ChunkSize);
    if (m_file.error() != QFileDevice::NoError)
        throw Error(
            Error::NotADatabase, u"%1 cannot be read: %2."_s.arg(m_name, m_file.errorString()));
    m_buffer.remove(0, m_at);
    m_searched -= std::min(m_searched, std::exchange(m_at, 0));
    m_buffer += decoded(bytes);
    return !bytes.isEmpty();
}

QString TextLines::decoded(const QByteArray& bytes) {
    if (!m_isLatin)
        return m_decoder(bytes);
    QString text = QString::fromLatin1(bytes);
    for (QChar& each : text) {
        if (each >= u'\u0080' && each < u'\u00A0')
            each = WindowsCharacters[each.unicode() - 0x80];
    }
    return text;
}

double TextLines::fraction() const {
    return m_file.size() > 0 ? double(m_file.pos()) / double(m_file.size()) : 1;
}

QStringList TextLines::remarks() const {
    QStringList remarks;
    if (m_isLatin)
        remarks.append(u"%1 is not in UTF-8; it was read as Latin-1"_s.arg(m_name));
    if (m_isCutOff)
        remarks.append(u"%1 does not end with a line end; it may be cut off"_s.arg(m_name));
    return remarks;
}
