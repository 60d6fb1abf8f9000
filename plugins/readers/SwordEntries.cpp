#include "readers/SwordEntries.h"

#include "basic/Error.h"

#include <QFile>
#include <QStringDecoder>
#include <QtEndian>
#include <zlib.h>

using namespace Qt::StringLiterals;

namespace {

// All numbers in these files have four bytes, the lowest first; a place is an offset and a length.
constexpr qsizetype NumberSize = 4;
constexpr qsizetype PlaceSize = 2 * NumberSize;
constexpr QByteArrayView KeyEnd("\r\n", 2);

// What no block of a real dictionary comes near.
constexpr qsizetype LargestBlock = qsizetype(16) << 20;

QByteArray readPart(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() == 0)
        throw Error(
            Error::NotADatabase,
            u"The file %1 is missing or empty. Install its package again."_s.arg(path));
    return file.readAll();
}

quint32 numberAt(QByteArrayView bytes, qsizetype offset) {
    return qFromLittleEndian<quint32>(bytes.data() + offset);
}

// The bytes that a place names; empty for a place that lies outside.
QByteArrayView bytesAt(QByteArrayView places, qsizetype placeOffset, QByteArrayView bytes) {
    if (placeOffset < 0 || placeOffset + PlaceSize > places.size())
        return {};
    const qsizetype offset = numberAt(places, placeOffset);
    const qsizetype length = numberAt(places, placeOffset + NumberSize);
    return offset + length <= bytes.size() ? bytes.sliced(offset, length) : QByteArrayView();
}

QByteArrayView withoutEndMark(QByteArrayView text) {
    return text.endsWith('\0') ? text.chopped(1) : text;
}

// Empty for bytes that are damaged, or more than any real block.
QByteArray unpacked(QByteArrayView packed) {
    for (qsizetype room = packed.size() * 8; room <= LargestBlock; room *= 2) {
        QByteArray block(room, Qt::Uninitialized);
        auto size = uLongf(room);
        const auto* const bytes = reinterpret_cast<const Bytef*>(packed.data());
        const int outcome =
            uncompress(reinterpret_cast<Bytef*>(block.data()), &size, bytes, uLong(packed.size()));
        if (outcome == Z_OK)
            return block.first(qsizetype(size));
        if (outcome != Z_BUF_ERROR)
            break;
    }
    return {};
}

// Descriptions are silent on the encoding, or wrong.
QString decoded(QByteArrayView bytes) {
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = utf8(bytes);
    return utf8.hasError() ? QString::fromLatin1(bytes) : text;
}

} // namespace

std::unique_ptr<SwordEntries> SwordEntries::open(const QString& folder, const QString& name) {
    std::optional<ModuleConf> conf = ModuleConf::find(folder, name);
    if (!conf)
        return nullptr;
    if (conf->entry("ModDrv") != "zLD"_L1 || conf->entry("CompressType") != "ZIP"_L1)
        throw Error(
            Error::NotADatabase,
            u"The module %1 is not kept as a compressed dictionary (zLD, ZIP)."_s.arg(name));
    return std::unique_ptr<SwordEntries>(new SwordEntries(std::move(*conf)));
}

SwordEntries::SwordEntries(ModuleConf conf)
    : m_conf(std::move(conf)) {
    const QString path = m_conf.dataPath();
    m_places = readPart(path + u".idx"_s);
    m_keys = readPart(path + u".dat"_s);
    m_blockPlaces = readPart(path + u".zdx"_s);
    m_blocks = readPart(path + u".zdt"_s);
}

std::optional<DictionaryEntry> SwordEntries::next() {
    const qsizetype count = (m_places.size() + PlaceSize - 1) / PlaceSize;
    while (m_next < count) {
        if (std::optional<DictionaryEntry> entry = entryAt(m_next++)) {
            ++m_read;
            return entry;
        }
        ++m_damaged;
    }
    if (m_read == 0)
        throw Error(
            Error::NotADatabase,
            u"The dictionary %1 is damaged: not one entry can be read. Install its package again."_s
                .arg(m_conf.dataPath()));
    return std::nullopt;
}

// A record holds the key and, behind a line end, the numbers of a block and of an entry in it.
std::optional<DictionaryEntry> SwordEntries::entryAt(qsizetype number) {
    const QByteArrayView record = bytesAt(m_places, number * PlaceSize, m_keys);
    const qsizetype keyLength =
        QByteArray::fromRawData(record.data(), record.size()).indexOf(KeyEnd);
    const qsizetype behindKey = keyLength + KeyEnd.size();
    if (keyLength <= 0 || behindKey + PlaceSize > record.size())
        return std::nullopt;
    if (!openBlock(numberAt(record, behindKey)))
        return std::nullopt;
    const QByteArrayView text = textInBlock(numberAt(record, behindKey + NumberSize));
    if (text.isEmpty())
        return std::nullopt;
    return DictionaryEntry{decoded(record.first(keyLength)), decoded(withoutEndMark(text))};
}

// Unpacking checks a sum over the whole block, so that what comes out is what was put in.
bool SwordEntries::openBlock(quint32 number) {
    if (m_opened == number)
        return !m_block.isEmpty();
    m_opened = number;
    m_block.clear();
    const QByteArrayView packed = bytesAt(m_blockPlaces, qsizetype(number) * PlaceSize, m_blocks);
    m_block = unpacked(packed);
    return !m_block.isEmpty();
}

QByteArrayView SwordEntries::textInBlock(quint32 number) const {
    if (m_block.size() < NumberSize || number >= numberAt(m_block, 0))
        return {};
    return bytesAt(m_block, NumberSize + qsizetype(number) * PlaceSize, m_block);
}

double SwordEntries::fraction() const {
    return double(m_next * PlaceSize) / double(m_places.size() + PlaceSize);
}

SourceInfo SwordEntries::info() const {
    return {m_conf.entry("Description"), m_conf.origin(), m_conf.entry("DistributionLicense")};
}

QStringList SwordEntries::remarks() const {
    if (m_damaged == 0)
        return {};
    return {u"%1 entries of %2 are damaged and left out; install its package again"_s.arg(
        QString::number(m_damaged), m_conf.origin())};
}
