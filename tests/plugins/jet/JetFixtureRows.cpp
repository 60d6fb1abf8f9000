// How the fixture writes rows.
#include "plugins/jet/JetFixtureLayout.h"

#include <algorithm>
#include <cstring>
#include <ranges>

namespace {

constexpr int LongestInRow = 64; // bytes of a long value
constexpr quint32 InRow = 0x80000000;
constexpr quint32 OnePiece = 0x40000000;

template <class Number>
QByteArray numberBytes(Number number) {
    char bytes[sizeof(Number)];
    std::memcpy(bytes, &number, sizeof(Number));
    return QByteArray(bytes, sizeof(Number));
}

// Behind the values of a row of Jet 4: where the variable ones begin, the last one first.
QByteArray tail(const QList<int>& offsets) {
    QByteArray bytes;
    for (const int offset : std::views::reverse(offsets))
        putShort(bytes, offset);
    return bytes + shortBytes(static_cast<int>(offsets.size()) - 1);
}

// In Jet 3 an offset has one byte; which field is the first beyond each 256 is told apart.
QByteArray shortTail(const QList<int>& offsets, qsizetype nullBytes) {
    const qsizetype size = offsets.last() + offsets.size() + 1 + nullBytes;
    int jumps = 0;
    while ((size + jumps - 1) / 256 > jumps)
        ++jumps;
    QByteArray bytes;
    for (const int offset : std::views::reverse(offsets))
        bytes += char(offset);
    for (int jump = jumps; jump > 0; --jump) {
        const auto beyond = std::ranges::find_if(offsets, [&](int at) { return at >= 256 * jump; });
        bytes += beyond == offsets.end() ? char(0xff) : char(beyond - offsets.begin());
    }
    return bytes + char(offsets.size() - 1);
}

} // namespace

bool isFixed(const JetFieldOutline& field) {
    return field.type != JetType::Text && field.type != JetType::Binary
           && field.type != JetType::Memo && field.type != JetType::Ole
           && field.type != JetType::Bytes;
}

int fixedSize(JetType type) {
    switch (type) {
    case JetType::Bool:
        return 0;
    case JetType::Byte:
        return 1;
    case JetType::Integer:
        return 2;
    case JetType::Guid:
        return 16;
    case JetType::Numeric:
        return 17;
    case JetType::Long:
    case JetType::Single:
    case JetType::Complex:
        return 4;
    default:
        return 8;
    }
}

JetFixture::Layout::Layout(const JetTableOutline& outline)
    : table(outline) {
    for (int listed = 0; listed < outline.fields.size(); ++listed) {
        JetFieldOutline field = outline.fields[listed];
        field.number = field.number < 0 ? listed : field.number;
        field.ordinal = field.ordinal < 0 ? listed : field.ordinal;
        places.append({field, listed, 0});
    }
    std::ranges::stable_sort(places, {}, [](const Place& place) { return place.field.number; });
    for (Place& place : places) {
        place.offset = isFixed(place.field) ? fixedBytes : variableFields++;
        if (isFixed(place.field))
            fixedBytes += fixedSize(place.field.type);
    }
}

QByteArray JetFixture::rowBytes(
    const Layout& layout, const JetRowOutline& outline, JetRowPages& longValues, int row) {
    const QVariantList& values = outline.values;
    const bool isOld = values.size() < layout.table.fields.size();
    const int known = outline.columns < 0 ? static_cast<int>(values.size()) : outline.columns;
    const int columns = isOld ? known : layout.columns();
    QByteArray nullBits((columns + 7) / 8, '\0');
    QByteArray result = m_format.isJet3 ? QByteArray(1, char(columns)) : shortBytes(columns);
    const qsizetype headSize = result.size();
    result += QByteArray(layout.fixedBytes, '\0');
    QList<int> offsets;
    for (const Layout::Place& place : layout.places) {
        const int number = place.field.number;
        if (number >= columns)
            continue;
        const QVariant value = values.value(place.listed);
        const QByteArray bytes = fieldBytes(place.field, value, longValues, row);
        if (place.field.type == JetType::Bool ? value.toBool() : !value.isNull())
            nullBits[number / 8] = char(nullBits[number / 8] | 1 << number % 8);
        if (isFixed(place.field)) {
            result.replace(headSize + place.offset, bytes.size(), bytes);
        } else {
            offsets.append(static_cast<int>(result.size()));
            result += bytes;
        }
    }
    offsets.append(static_cast<int>(result.size()));
    if (layout.variableFields > 0)
        result += m_format.isJet3 ? shortTail(offsets, nullBits.size()) : tail(offsets);
    return result + nullBits;
}

QByteArray JetFixture::fieldBytes(
    const JetFieldOutline& field, const QVariant& value, JetRowPages& longValues, int row) {
    if (value.isNull() || field.type == JetType::Bool)
        return {};
    if (field.type == JetType::Memo || field.type == JetType::Ole)
        return longValue(textBytes(value), longValues, row);
    if (value.typeId() == QMetaType::QByteArray || value.typeId() == QMetaType::QString)
        return textBytes(value);
    switch (field.type) {
    case JetType::Single:
        return numberBytes(value.toFloat());
    case JetType::Double:
    case JetType::Date:
        return numberBytes(value.toDouble());
    default:
        return numberBytes(value.toLongLong()).left(fixedSize(field.type));
    }
}

QByteArray JetFixture::textBytes(const QVariant& value) const {
    if (value.typeId() == QMetaType::QByteArray)
        return value.toByteArray();
    const QString text = value.toString();
    if (m_format.isJet3)
        return text.toLatin1();
    QByteArray bytes;
    for (const QChar character : text)
        putShort(bytes, character.unicode());
    return bytes;
}

// In the row, in one piece on a page, or in a chain of pieces, each behind the pointer to the next.
QByteArray JetFixture::longValue(const QByteArray& value, JetRowPages& longValues, int row) {
    const auto size = static_cast<quint32>(value.size());
    if (value.size() <= LongestInRow)
        return longBytes(size | InRow) + QByteArray(8, '\0') + value;
    if (value.size() <= longValues.room())
        return longBytes(size | OnePiece) + longBytes(longValues.add(value, 0, row))
               + QByteArray(4, '\0');
    const int pieceSize = longValues.room() - 4;
    quint32 next = 0;
    for (qsizetype at = (value.size() - 1) / pieceSize * pieceSize; at >= 0; at -= pieceSize)
        next = longValues.add(longBytes(next) + value.mid(at, pieceSize), 0, row);
    return longBytes(size) + longBytes(next) + QByteArray(4, '\0');
}
