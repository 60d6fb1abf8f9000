#include "jet/JetText.h"

#include "basic/Error.h"

#include <algorithm>
#include <iconv.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int DefaultCodePage = 1252;
constexpr int KnownCodePages[] = {874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258};
constexpr QByteArrayView CompressionMark("\xff\xfe", 2);

class Converter {
public:
    explicit Converter(const QByteArray& encoding)
        : m_converter(iconv_open("UTF-16LE", encoding.constData())) {}
    ~Converter() {
        if (isOpen())
            iconv_close(m_converter);
    }
    Q_DISABLE_COPY_MOVE(Converter)

    // A byte that the code page leaves open is the character of the same number.
    char16_t character(uchar byte) const {
        char source[] = {static_cast<char>(byte)};
        uchar converted[2] = {byte, 0};
        char* in = source;
        char* out = reinterpret_cast<char*>(converted);
        size_t inLeft = sizeof source;
        size_t outLeft = sizeof converted;
        if (isOpen()) {
            iconv(m_converter, &in, &inLeft, &out, &outLeft);
            iconv(m_converter, nullptr, nullptr, &out, &outLeft); // what it holds back for accents
        }
        return static_cast<char16_t>(converted[0] | converted[1] << 8);
    }

private:
    bool isOpen() const { return m_converter != iconv_t(-1); }

    iconv_t m_converter;
};

char16_t unitAt(QByteArrayView bytes, qsizetype offset) {
    const auto low = static_cast<uchar>(bytes[offset]);
    const auto high = static_cast<uchar>(bytes[offset + 1]);
    return static_cast<char16_t>(low | high << 8);
}

// Starts with one byte a character; a zero byte switches to two bytes a character and back.
std::optional<QString> decompress(QByteArrayView bytes) {
    QString text;
    text.reserve(bytes.size());
    bool isCompressed = true;
    for (qsizetype at = 0; at < bytes.size();) {
        if (bytes[at] == '\0') {
            isCompressed = !isCompressed;
            ++at;
        } else if (isCompressed) {
            text.append(QChar(ushort(static_cast<uchar>(bytes[at]))));
            ++at;
        } else if (at + 1 < bytes.size()) {
            text.append(QChar(unitAt(bytes, at)));
            at += 2;
        } else {
            return std::nullopt;
        }
    }
    return text;
}

std::optional<QString> decodeUnits(QByteArrayView bytes) {
    if (bytes.size() % 2 != 0)
        return std::nullopt;
    QString text(bytes.size() / 2, Qt::Uninitialized);
    for (qsizetype index = 0; index < text.size(); ++index)
        text[index] = QChar(unitAt(bytes, 2 * index));
    return text;
}

} // namespace

JetText JetText::ofCodePage(int codePage, const QString& fileName) {
    const int page = codePage == 0 ? DefaultCodePage : codePage;
    if (std::ranges::find(KnownCodePages, page) == std::end(KnownCodePages))
        throw Error(
            Error::NotADatabase,
            u"%1 is written in the code page %2, which this program does not read."_s.arg(
                fileName, QString::number(page)));
    const Converter converter("CP" + QByteArray::number(page));
    JetText text;
    text.m_characters.emplace();
    for (int byte = 0; byte < 256; ++byte)
        text.m_characters->at(static_cast<size_t>(byte)) =
            converter.character(static_cast<uchar>(byte));
    return text;
}

std::optional<QString> JetText::decode(QByteArrayView bytes) const {
    if (!m_characters)
        return bytes.startsWith(CompressionMark) ? decompress(bytes.sliced(2)) : decodeUnits(bytes);
    QString text(bytes.size(), Qt::Uninitialized);
    for (qsizetype index = 0; index < bytes.size(); ++index)
        text[index] = QChar(m_characters->at(static_cast<uchar>(bytes[index])));
    return text;
}
