#include "check/Check.h"

#include "basic/Error.h"
#include "check/DataFileKinds.h"
#include "check/FieldText.h"
#include "check/TranslationCheck.h"
#include "desktop/HostPath.h"
#include "jet/JetConversion.h"
#include "jet/JetVerses.h"
#include "store/Workspace.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

void checkVerses(Recordset rows, const TableNeeds& needs, CheckReport& report) {
    rows.Index(needs.index);
    TranslationCheck check(report);
    for (; !rows.Eof(); rows.MoveNext())
        check.take(rows);
    check.finish();
}

void checkRows(Recordset rows, const TableNeeds& needs, CheckReport& report) {
    for (qint64 number = 1; !rows.Eof(); rows.MoveNext(), ++number) {
        if (needs.isNumbered && textOf(rows.Fields(0)) != QString::number(number))
            report.faultAt(
                u"rows of %1 out of their count"_s.arg(needs.name), QString::number(number));
        if (needs.headword >= 0 && textOf(rows.Fields(needs.headword)).trimmed().isEmpty())
            report.faultAt(
                u"rows of %1 without %2"_s.arg(needs.name, needs.columns[needs.headword]),
                QString::number(number));
    }
}

void checkTable(
    Database& database, const TableNeeds& needs, const QList<TableSummary>& tables,
    CheckReport& report) {
    const TableSummary* table = tableNamed(tables, needs.name);
    if (!table) {
        report.fault(u"the table %1 is missing"_s.arg(QString(needs.name)));
        return;
    }
    const QStringList lacks = lacksOf(needs, *table);
    for (const QString& lack : lacks)
        report.fault(lack);
    if (!lacks.isEmpty())
        return;
    if (!needs.index.isEmpty())
        return checkVerses(database.OpenRecordset(table->name, dbOpenTable), needs, report);
    report.hold(u"%1 rows in %2"_s.arg(figure(table->rows), table->name));
    checkRows(database.OpenRecordset(table->name), needs, report);
}

void tellOrigin(Database& database, const QList<TableSummary>& tables, CheckReport& report) {
    const TableSummary* table = tableNamed(tables, "tblInfo"_L1);
    if (!table || table->rows == 0)
        return;
    Recordset info = database.OpenRecordset(table->name);
    QStringList parts;
    for (int field = 0; field < table->columns.size(); ++field) // a licence may be pages long
        parts.append(textOf(info.Fields(field)).section(u'\n', 0, 0));
    parts.removeAll(QString());
    report.hold(parts.join(u"; "_s));
}

void tellKeptNotes(const QList<TableSummary>& tables, CheckReport& report) {
    if (const TableSummary* kept = tableNamed(tables, "tblKeptNotes"_L1))
        report.hold(u"%1 notes kept in %2, whose verses this text lacks"_s.arg(
            figure(kept->rows), kept->name));
}

void checkStoreFile(const QString& path, CheckReport& report) {
    const DataFileInspection inspection(path);
    const QList<TableSummary> tables = inspection.tables();
    for (const QString& damage : inspection.damage())
        report.fault(damage);
    const DataFileKind* kind = kindOf(tables);
    if (!kind) {
        report.fault(u"it has no table that the program reads"_s);
        return;
    }
    report.hold(kind->title);
    Workspace workspace = DBEngine::CreateWorkspace(u"Check"_s, u"Admin"_s, {});
    Database database = workspace.OpenDatabase(path, OpenMode::ReadOnly);
    tellOrigin(database, tables, report);
    for (const TableNeeds& needs : kind->tables)
        checkTable(database, needs, tables, report);
    tellKeptNotes(tables, report);
}

// Looks at what a conversion would make of it.
void checkJetFile(const QString& path, CheckReport& report) {
    report.hold(u"a Jet database, which the program converts when it first opens it"_s);
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QFileInfo(path).fileName());
    if (!QFile::copy(path, copy))
        throw Error(Error::PathAccess, u"There is no room for a copy in %1."_s.arg(folder.path()));
    QFile::setPermissions(copy, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    checkStoreFile(convertJetFile(copy), report);
}

} // namespace

bool checkDataFile(const QString& path, Console& console) {
    CheckReport report;
    try {
        const QString file = hostPath(path);
        if (file.isEmpty() && !path.isEmpty()) // all separators: the root of the host
            throw Error(
                Error::PathAccess,
                u"The file \"%1\" is a folder or a device, and no data file."_s.arg(path));
        const bool isJet = isJetFile(file);
        isJet ? checkJetFile(file, report) : checkStoreFile(file, report);
    } catch (const Error& error) {
        report.fault(error.text());
    }
    writeLine(console.out, path);
    for (const QString& fact : report.facts())
        writeLine(console.out, u"  "_s + fact);
    const QStringList faults = report.faults();
    for (const QString& fault : faults)
        writeLine(console.out, u"  wrong: "_s + fault);
    if (faults.isEmpty())
        writeLine(console.out, u"  Nothing is wrong with it."_s);
    return faults.isEmpty();
}
