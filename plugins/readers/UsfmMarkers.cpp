#include "readers/UsfmMarkers.h"

#include <QHash>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

// Separated by blanks.
struct MarkerRow {
    UsfmMarker meaning;
    QLatin1String names;
};

constexpr MarkerRow Markers[]{
    {{MarkupKind::Heading, true},
     "id ide h toc toca rem sts usfm mt mte ms mr s sr r rd sp sd cl cp cd qa restore imt is ip "
     "ipi "
     "im imi ipq imq ipr iq ib ili iot io iex imte ie periph languageCode generated"_L1},
    {{MarkupKind::Separate, true},
     "p m po pr cls pmo pm pmc pmr pi mi nb pc ph phi q qr qc qm qd b li lim lf lh lit pb tr ps "
     "psi "
     "table row"_L1},
    {{MarkupKind::Separate, false}, "tc tcr tcc th thr thc cell optbreak optionalLineBreak"_L1},
    {{MarkupKind::Title, true}, "d"_L1},
    {{MarkupKind::Note, false}, "f fe ef x ex xt fig va vp ca cat rq pro fm ior iqt"_L1},
    {{MarkupKind::Red, false}, "wj"_L1},
};

QHash<QStringView, UsfmMarker> makeTable() {
    QHash<QStringView, UsfmMarker> table;
    static QStringList names; // what the keys look at
    for (const MarkerRow& row : Markers) {
        for (const QString& name : QString(row.names).split(u' ')) {
            names.append(name);
            table.insert(names.last(), row.meaning);
        }
    }
    return table;
}

} // namespace

UsfmMarker usfmMarker(QStringView name) {
    static const QHash<QStringView, UsfmMarker> table = makeTable();
    const auto isNumber = [](QChar each) { return each.isDigit() || each == u'-'; };
    while (!name.isEmpty() && isNumber(name.back()))
        name.chop(1);
    return table.value(name, {MarkupKind::Plain, false});
}
