#include "makers/TimeLineMaker.h"

#include "Progress.h"
#include "makers/InfoRow.h"
#include "readers/DataLines.h"
#include "store/DataFile.h"

#include <map>

using namespace Qt::StringLiterals;

namespace {

constexpr double FirstEra = 0.5; // of the work

// The events of each year, in the order of the years' numbers.
using Years = std::map<int, QString>;

int yearIn(const QString& field, const DataLines& lines) {
    static const auto isDigit = [](QChar character) {
        return character >= u'0' && character <= u'9';
    };
    const int year = std::ranges::all_of(field, isDigit) ? field.toInt() : 0;
    if (year == 0)
        throw lines.lineError(u"\"%1\" is no year in plain digits"_s.arg(field));
    return year;
}

// A list row and a row of the table are to agree, so the events of a year share one text.
void addEvent(QString& events, const QString& event) {
    static const QString Stops = u".!?"_s;
    if (!events.isEmpty())
        events.append(Stops.contains(events.back()) ? u" "_s : u"; "_s);
    events.append(event);
}

Years readYears(const QString& path) {
    Years years;
    DataLines lines(path, 2);
    while (const std::optional<QStringList> fields = lines.next())
        addEvent(years[yearIn(fields->at(0), lines)], fields->at(1));
    return years;
}

template <class Range>
qlonglong writeEra(DataFileWriter& writer, const QString& table, const Range& years) {
    qlonglong id = 0;
    for (const auto& [year, events] : years)
        writer.insert(table, {++id, QString::number(year), events});
    writer.insert(table, {++id, QVariant(), QVariant()});
    return id;
}

} // namespace

MadeFile TimeLineMaker::make(const Order& order, Progress& progress) {
    const Years before = readYears(m_before);
    progress.advance(FirstEra);
    const Years after = readYears(m_after);
    progress.advance(1);
    DataFileWriter writer(order.path);
    writer.execute("CREATE TABLE tblBC (id INTEGER PRIMARY KEY, year TEXT, event TEXT)");
    writer.execute("CREATE TABLE tblAD (id INTEGER PRIMARY KEY, year TEXT, event TEXT)");
    const std::map<int, QString, std::greater<>> fromTheFirst(before.begin(), before.end());
    const qlonglong rows =
        writeEra(writer, u"tblBC"_s, fromTheFirst) + writeEra(writer, u"tblAD"_s, after);
    writeInfo(writer, {u"Time line"_s, u"written by this project"_s, u"the project's own"_s});
    writer.finish();
    return {rows, {}};
}
