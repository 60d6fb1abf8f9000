#include "check/CheckReport.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

constexpr int NamedPlaces = 10;

} // namespace

void CheckReport::fault(const QString& fault) {
    if (!m_faults.contains(fault))
        m_faults.append(fault);
}

void CheckReport::faultAt(const QString& kind, const QString& place) {
    Places& places = m_places[kind];
    if (places.count++ < NamedPlaces)
        places.named.append(place);
}

QStringList CheckReport::faults() const {
    QStringList faults = m_faults;
    for (auto places = m_places.cbegin(); places != m_places.cend(); ++places) {
        const QString more = places->count > NamedPlaces ? u" ..."_s : QString();
        faults.append(u"%1 (%2): %3%4"_s.arg(
            places.key(), figure(places->count), places->named.join(u", "_s), more));
    }
    return faults;
}

QString figure(qint64 number) {
    return QLocale(QLocale::English).toString(number);
}
