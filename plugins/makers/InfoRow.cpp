#include "makers/InfoRow.h"

#include "store/DataFile.h"

#include <QDate>

using namespace Qt::StringLiterals;

void writeInfo(DataFileWriter& writer, const SourceInfo& info) {
    createInfoTable(writer);
    writer.insert(
        u"tblInfo"_s,
        {info.title, info.source, info.licence, QDate::currentDate().toString(Qt::ISODate)});
}
