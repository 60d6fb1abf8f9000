#include "JetFile.h"

#include "plugins/jet/JetFixture.h"
#include "store/Workspace.h"

#include <QFile>

using namespace Qt::StringLiterals;

void writeJet(const QString& dataFile, const QString& path) {
    JetTableOutline table{
        u"tblMain"_s,
        {{u"ID"_s, JetType::Long, 0, true},
         {u"book"_s, JetType::Integer},
         {u"chapter"_s, JetType::Integer},
         {u"verse"_s, JetType::Integer},
         {u"body"_s, JetType::Memo},
         {u"note"_s, JetType::Memo}},
        {}};
    Workspace workspace = DBEngine::CreateWorkspace(u"Bench"_s, u"Admin"_s, {});
    Recordset rows = workspace.OpenDatabase(dataFile, OpenMode::ReadOnly)
                         .OpenRecordset(u"tblMain"_s, dbOpenTable);
    for (; !rows.Eof(); rows.MoveNext()) {
        QVariantList values;
        for (int field = 0; field < int(table.fields.size()); ++field)
            values.append(rows.Fields(field).Value());
        table.rows.append({values});
    }
    table.lastCounter = int(table.rows.size());
    JetFixture fixture(JetVersion::Jet4);
    fixture.add(table);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(fixture.bytes());
}
