#include "store/StoredValue.h"

#include "basic/Conversion.h"
#include "basic/Error.h"

#include <QByteArrayView>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// Beyond this power of two no whole number of 64 bits is left.
constexpr double WholeNumbersEnd = 9223372036854775808.0;

[[noreturn]] void throwNotConvertible(const QVariant& value) {
    throw Error(
        Error::DataTypeConversion,
        u"The value \"%1\" cannot be stored in this field."_s.arg(value.toString().left(40)));
}

bool isColumnOfNumbers(Affinity affinity) {
    return affinity == Affinity::Integer || affinity == Affinity::Real
           || affinity == Affinity::Numeric;
}

bool isNumber(const StoredValue& value) {
    return std::holds_alternative<qint64>(value) || std::holds_alternative<double>(value);
}

// The number in the form in which the engine keeps it in such a column.
StoredValue numberFor(double number, Affinity affinity) {
    const bool isWhole = std::floor(number) == number && std::abs(number) < WholeNumbersEnd;
    if (affinity != Affinity::Real && isWhole)
        return static_cast<qint64>(number);
    return number;
}

StoredValue numberFor(qint64 number, Affinity affinity) {
    if (affinity == Affinity::Real)
        return static_cast<double>(number);
    return number;
}

StoredValue textFor(const QString& text) {
    return StoredText{text.toStdString()};
}

StoredValue numberFromWritten(const QVariant& value, Affinity affinity) {
    bool isWhole = false;
    const qint64 whole = value.toString().trimmed().toLongLong(&isWhole);
    if (isWhole)
        return numberFor(whole, affinity);
    const std::optional<double> number = numberFromText(value.toString().toStdString());
    if (!number)
        throwNotConvertible(value);
    return numberFor(*number, affinity);
}

std::weak_ordering compareNumbers(qint64 left, double right) {
    if (right >= WholeNumbersEnd)
        return std::weak_ordering::less;
    if (right < -WholeNumbersEnd)
        return std::weak_ordering::greater;
    const auto whole = static_cast<qint64>(right);
    if (left != whole)
        return left <=> whole;
    const double rest = right - static_cast<double>(whole);
    return rest > 0   ? std::weak_ordering::less
           : rest < 0 ? std::weak_ordering::greater
                      : std::weak_ordering::equivalent;
}

std::weak_ordering reversed(std::weak_ordering order) {
    return std::is_lt(order)   ? std::weak_ordering::greater
           : std::is_gt(order) ? std::weak_ordering::less
                               : order;
}

std::weak_ordering compareReals(double left, double right) {
    return left < right   ? std::weak_ordering::less
           : left > right ? std::weak_ordering::greater
                          : std::weak_ordering::equivalent;
}

std::weak_ordering compareNumbers(const StoredValue& left, const StoredValue& right) {
    const qint64* const leftWhole = std::get_if<qint64>(&left);
    const qint64* const rightWhole = std::get_if<qint64>(&right);
    if (leftWhole && rightWhole)
        return *leftWhole <=> *rightWhole;
    if (leftWhole)
        return compareNumbers(*leftWhole, std::get<double>(right));
    if (rightWhole)
        return reversed(compareNumbers(*rightWhole, std::get<double>(left)));
    return compareReals(std::get<double>(left), std::get<double>(right));
}

} // namespace

QVariant toVariant(const StoredValue& value) {
    struct Visitor {
        QVariant operator()(std::monostate) const { return {}; }
        QVariant operator()(qint64 number) const { return static_cast<qlonglong>(number); }
        QVariant operator()(double number) const { return number; }
        QVariant operator()(const StoredText& text) const {
            return QString::fromStdString(text.bytes);
        }
        QVariant operator()(const StoredBlob& blob) const {
            return QByteArray::fromStdString(blob.bytes);
        }
    };
    return std::visit(Visitor(), value);
}

StoredValue toStored(const QVariant& value, Affinity affinity) {
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return {};
    case QMetaType::QByteArray:
        return StoredBlob{value.toByteArray().toStdString()};
    case QMetaType::QString:
        return isColumnOfNumbers(affinity) ? numberFromWritten(value, affinity)
                                           : textFor(value.toString());
    default:
        break;
    }
    bool converted = false;
    const double number = value.toDouble(&converted);
    if (!converted || !std::isfinite(number))
        throwNotConvertible(value);
    if (affinity == Affinity::Text)
        return textFor(toText(value));
    const bool isReal = value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float;
    if (!isReal)
        return numberFor(value.toLongLong(), affinity);
    return affinity == Affinity::None ? StoredValue(number) : numberFor(number, affinity);
}

std::optional<double> numberFromText(std::string_view text) {
    bool converted = false;
    const double number =
        QByteArrayView(text.data(), static_cast<qsizetype>(text.size())).toDouble(&converted);
    if (!converted || !std::isfinite(number))
        return std::nullopt;
    return number;
}

std::weak_ordering compareStored(const StoredValue& left, const StoredValue& right) {
    if (isNumber(left) && isNumber(right))
        return compareNumbers(left, right);
    if (left.index() != right.index()) // the alternatives stand in the engine's order
        return left.index() <=> right.index();
    if (const StoredText* const text = std::get_if<StoredText>(&left))
        return text->bytes <=> std::get<StoredText>(right).bytes;
    if (const StoredBlob* const blob = std::get_if<StoredBlob>(&left))
        return blob->bytes <=> std::get<StoredBlob>(right).bytes;
    return std::weak_ordering::equivalent;
}
