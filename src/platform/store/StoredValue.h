// A value as it stands in a file: what the engine gives and takes, byte for byte, so that a key of
// a damaged text still finds its own row again.
#pragma once

#include <QString>
#include <QVariant>
#include <compare>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

struct StoredText {
    std::string bytes; // UTF-8, unless the file is damaged
    friend auto operator<=>(const StoredText&, const StoredText&) = default;
};

struct StoredBlob {
    std::string bytes;
    friend auto operator<=>(const StoredBlob&, const StoredBlob&) = default;
};

// std::monostate is Null. Equality is that of kind and value.
using StoredValue = std::variant<std::monostate, qint64, double, StoredText, StoredBlob>;

// What a column makes of the values that are written to it.
enum class Affinity { None, Text, Integer, Real, Numeric };

// The value as the program sees it: Null, qlonglong, double, QString or QByteArray.
QVariant toVariant(const StoredValue& value);

// The value as it is kept in a column: texts in a column of numbers become numbers, numbers in a
// column of texts become texts. Error::DataTypeConversion for a text that is no number in a column
// of numbers, and for a value that no file can keep.
StoredValue toStored(const QVariant& value, Affinity affinity);

// The number that a text means as a whole, blanks at its ends aside.
std::optional<double> numberFromText(std::string_view text);

// The order in which the engine's indexes keep values: Null, numbers, texts, blobs.
std::weak_ordering compareStored(const StoredValue& left, const StoredValue& right);
