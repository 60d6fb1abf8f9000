#include "makers/TopicsMaker.h"

#include "Progress.h"
#include "store/DataFile.h"

#include <QDate>

using namespace Qt::StringLiterals;

MadeFile TopicsMaker::make(const Order& order, Progress& progress) {
    progress.advance(0);
    DataFileWriter writer(order.path);
    createTopicsSchema(writer);
    createInfoTable(writer);
    writer.insert(
        u"tblInfo"_s, {u"Topics"_s, u"made by the user"_s, u"the user's own"_s,
                       QDate::currentDate().toString(Qt::ISODate)});
    writer.finish();
    return {};
}
