#include "jet/JetValue.h"

#include "jet/JetLongValue.h"

#include <QUuid>
#include <QtEndian>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double MoneyUnit = 10000; // Money counts ten-thousandths
constexpr int NumericSize = 17;
constexpr int GuidSize = 16;

template <class Number>
Number number(JetFile& file, const JetColumn& column, QByteArrayView bytes) {
    if (bytes.size() != static_cast<qsizetype>(sizeof(Number)))
        file.failAsDamaged(u"a value of \"%1\" has a wrong size"_s.arg(column.name));
    return qFromLittleEndian<Number>(bytes.data());
}

double real(JetFile& file, const JetColumn& column, double value) {
    if (!std::isfinite(value))
        file.failAsDamaged(u"a value of \"%1\" is no number"_s.arg(column.name));
    return value;
}

QString text(JetFile& file, const JetColumn& column, QByteArrayView bytes) {
    const std::optional<QString> text = file.text().decode(bytes);
    if (!text)
        file.failAsDamaged(u"a value of \"%1\" is no text"_s.arg(column.name));
    return *text;
}

QString guid(JetFile& file, const JetColumn& column, QByteArrayView bytes) {
    if (bytes.size() != GuidSize)
        file.failAsDamaged(u"a value of \"%1\" has a wrong size"_s.arg(column.name));
    const QByteArray copy = bytes.toByteArray();
    const auto byte = [&](int index) { return static_cast<uchar>(copy[index]); };
    return QUuid(
               jetLong(copy, 0), jetShort(copy, 4), jetShort(copy, 6), byte(8), byte(9), byte(10),
               byte(11), byte(12), byte(13), byte(14), byte(15))
        .toString()
        .toUpper();
}

// A sign, then 128 bits in four numbers, the highest first.
double numeric(JetFile& file, const JetColumn& column, QByteArrayView bytes) {
    if (bytes.size() != NumericSize)
        file.failAsDamaged(u"a value of \"%1\" has a wrong size"_s.arg(column.name));
    double value = 0;
    for (int word = 0; word < 4; ++word)
        value = value * 4294967296.0 + jetLong(bytes, 1 + 4 * word);
    value /= std::pow(10.0, column.scale);
    return real(file, column, bytes[0] != 0 ? -value : value);
}

QVariant wholeNumber(JetFile& file, const JetColumn& column, QByteArrayView bytes) {
    switch (column.type) {
    case JetType::Byte:
        return qlonglong(number<quint8>(file, column, bytes));
    case JetType::Integer:
        return qlonglong(number<qint16>(file, column, bytes));
    case JetType::BigInteger:
        return qlonglong(number<qint64>(file, column, bytes));
    default:
        return qlonglong(number<qint32>(file, column, bytes));
    }
}

} // namespace

QVariant jetValue(JetFile& file, const JetColumn& column, const JetPart& part) {
    if (column.type == JetType::Bool) // its value is the Null bit
        return qlonglong(part.isNull ? 0 : 1);
    if (part.isNull)
        return {};
    const QByteArrayView bytes = part.bytes;
    switch (column.type) {
    case JetType::Single:
        return real(file, column, double(number<float>(file, column, bytes)));
    case JetType::Double:
    case JetType::Date:
        return real(file, column, number<double>(file, column, bytes));
    case JetType::Money:
        return double(number<qint64>(file, column, bytes)) / MoneyUnit;
    case JetType::Numeric:
        return numeric(file, column, bytes);
    case JetType::Text:
        return text(file, column, bytes);
    case JetType::Memo:
        return text(file, column, readLongValue(file, bytes));
    case JetType::Guid:
        return guid(file, column, bytes);
    case JetType::Binary:
    case JetType::Bytes:
        return bytes.toByteArray();
    case JetType::Ole:
        return readLongValue(file, bytes);
    default:
        return wholeNumber(file, column, bytes);
    }
}
