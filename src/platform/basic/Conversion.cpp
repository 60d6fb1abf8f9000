#include "basic/Conversion.h"

#include "basic/Error.h"
#include "basic/Text.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void throwOverflow() {
    throw Error(Error::OverflowNumber, u"Overflow"_s);
}

[[noreturn]] void throwInvalidUseOfNull() {
    throw Error(Error::InvalidUseOfNull, u"Invalid use of Null"_s);
}

template <class Whole>
Whole narrow(double number) {
    const double whole = std::nearbyint(number);
    if (!(whole >= std::numeric_limits<Whole>::min() && whole <= std::numeric_limits<Whole>::max()))
        throwOverflow();
    return static_cast<Whole>(whole);
}

} // namespace

bool isNull(const QVariant& value) {
    return !value.isValid();
}

QString toText(const QVariant& value) {
    if (isNull(value))
        throwInvalidUseOfNull();
    if (value.metaType() == QMetaType::fromType<double>())
        return Trim(Str(value.toDouble()));
    return value.toString();
}

double toNumber(const QVariant& value) {
    if (isNull(value))
        throwInvalidUseOfNull();
    bool converted = false;
    const double number = value.metaType() == QMetaType::fromType<QString>()
                              ? value.toString().trimmed().toDouble(&converted)
                              : value.toDouble(&converted);
    if (!converted || !std::isfinite(number))
        throw Error(Error::TypeMismatch, u"Type mismatch"_s);
    return number;
}

int toInteger(const QVariant& value) {
    return narrow<int>(toNumber(value));
}

qint16 toInt16(double number) {
    return narrow<qint16>(number);
}

quint8 toByte(double number) {
    return narrow<quint8>(number);
}

float toSingle(double number) {
    if (!(std::abs(number) <= std::numeric_limits<float>::max()))
        throwOverflow();
    return static_cast<float>(number);
}
