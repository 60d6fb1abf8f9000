#include "richtext/FontFamilies.h"

#include <QFontDatabase>
#include <QHash>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Twin {
    QLatin1StringView family;
    QLatin1StringView twin; // empty stands for the system's own font
};

constexpr Twin twins[] = {
    {"Times New Roman"_L1, "Liberation Serif"_L1},
    {"Times"_L1, "Liberation Serif"_L1},
    {"Arial"_L1, "Liberation Sans"_L1},
    {"Helvetica"_L1, "Liberation Sans"_L1},
    {"Courier New"_L1, "Liberation Mono"_L1},
    {"Courier"_L1, "Liberation Mono"_L1},
    {"MS Sans Serif"_L1, ""_L1},
};

QString findFamily(const QString& wanted) {
    const auto row = std::ranges::find_if(twins, [&](const Twin& entry) {
        return wanted.compare(entry.family, Qt::CaseInsensitive) == 0;
    });
    if (row == std::end(twins) || QFontDatabase::hasFamily(wanted))
        return wanted;
    if (row->twin.isEmpty())
        return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
    return row->twin;
}

} // namespace

// Asking for a family reads the whole font database once, so only families that have a twin are
// asked for, each once.
QString availableFamily(const QString& wanted) {
    static QHash<QString, QString> known;
    const auto found = known.constFind(wanted);
    return found != known.cend() ? *found : *known.insert(wanted, findFamily(wanted));
}
