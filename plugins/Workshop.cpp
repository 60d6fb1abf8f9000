#include "Workshop.h"

#include "DataFolder.h"
#include "Interruption.h"
#include "basic/Conversion.h"
#include "basic/Error.h"
#include "desktop/HostPath.h"
#include "jet/JetVerses.h"
#include "store/Workspace.h"

#include <QDir>
#include <QFileInfo>
#include <array>

using namespace Qt::StringLiterals;

namespace {

// A line of the table of works: columns, and a text of any length behind them.
QString listLine(const QStringList& columns, const QString& rest) {
    static constexpr std::array Widths{10, 14, 9, 8, 36};
    QString line;
    for (qsizetype column = 0; column < columns.size(); ++column)
        line.append(columns[column].leftJustified(Widths[size_t(column)]));
    return line + rest;
}

QString sourceOf(const Work& work) {
    if (!work.maker)
        return u"your own file"_s;
    return work.packages.isEmpty() ? u"(none)"_s : QString(work.packages);
}

// What a data file that is there holds.
struct FileSummary {
    int rows = 0;
    QString licence; // its first line; empty where the file does not say
};

FileSummary summaryOf(const QString& path, const Work& work) {
    Workspace workspace = DBEngine::CreateWorkspace(u"List"_s, u"Admin"_s, {});
    Database database = workspace.OpenDatabase(path, OpenMode::ReadOnly);
    FileSummary summary;
    for (const QString& table : QString(work.tables).split(u' '))
        summary.rows += database.OpenRecordset(table, dbOpenTable).RecordCount();
    attempt([&] {
        Recordset info = database.OpenRecordset(u"tblInfo"_s, dbOpenTable);
        summary.licence = toText(info.Fields(u"licence"_s).Value()).section(u'\n', 0, 0).trimmed();
    });
    return summary;
}

// What stands under the name of a data file.
struct Standing {
    QString there; // for the table
    QString rows;
    QString rest; // the licence, or what is the matter
};

Standing standingOf(const QString& path, const Work& work) {
    const QFileInfo info(path);
    if (info.isDir())
        return {u"folder"_s, u"-"_s, u"a folder stands under this name"_s};
    if (!info.isFile())
        return {u"device"_s, u"-"_s, u"what stands under this name is no file"_s};
    if (isJetFile(path))
        return {u"Jet"_s, u"-"_s, u"a Jet database, which the program converts when it opens it"_s};
    try {
        const FileSummary summary = summaryOf(path, work);
        const QString licence = summary.licence.isEmpty() ? QString(work.licence) : summary.licence;
        return {u"yes"_s, QString::number(summary.rows), licence};
    } catch (const Error& error) {
        return {u"damaged"_s, u"-"_s, error.text()};
    }
}

} // namespace

Workshop::Workshop(const WorkshopOptions& options, Console& console)
    : m_options(options)
    , m_console(console) {
    m_options.folder = QDir::cleanPath(QDir(hostPath(options.folder)).absolutePath());
}

bool Workshop::make(const QList<const Work*>& works) {
    try {
        madeFolder(m_options.folder);
        bool allMade = true;
        for (const Work* work : works)
            allMade = makeWork(*work) && allMade;
        return allMade;
    } catch (const Interrupted&) {
        writeLine(m_console.errors, StoppedByUser);
    } catch (const Error& error) {
        writeLine(m_console.errors, error.text());
    }
    return false;
}

bool Workshop::makeWork(const Work& work) {
    if (!work.maker) {
        writeLine(
            m_console.errors,
            u"%1 cannot be made: no openly licensed text of it is known. A file of your own can "
            u"be imported: lumenvia-plugins import FILE --as %2"_s.arg(work.file, work.name));
        return false;
    }
    const Order order = orderFor(m_options.folder, work.file);
    if (order.replaces && (work.isTheUsers || !m_options.force)) {
        const QString way = work.isTheUsers ? QString() : u"; --force makes it anew"_s;
        writeLine(
            m_console.out, u"%1 is there already and stays as it is, with what its owner wrote "
                           u"into it%2."_s.arg(order.path, way));
        return true;
    }
    try {
        const auto open = [this, &work] { return work.maker(m_options.moduleFolders); };
        makeAndTell(work.file, order, open, m_console);
        return true;
    } catch (const Error& error) {
        writeLine(m_console.errors, u"%1 was not made: %2"_s.arg(work.file, error.text()));
        return false;
    }
}

void Workshop::list() const {
    writeLine(m_console.out, u"Data files in %1:"_s.arg(m_options.folder));
    writeLine(
        m_console.out,
        listLine({u"WORK"_s, u"FILE"_s, u"THERE"_s, u"ROWS"_s, u"SOURCE"_s}, u"LICENCE"_s));
    for (const Work& work : works())
        writeLine(m_console.out, lineOf(work));
}

QString Workshop::lineOf(const Work& work) const {
    const QString source = sourceOf(work);
    const QString ownFile = work.maker ? QString(work.licence) : u"import FILE --as "_s + work.name;
    const Order order = orderFor(m_options.folder, work.file);
    if (!order.replaces)
        return listLine({work.name, work.file, u"no"_s, u"-"_s, source}, ownFile);
    const Standing standing = standingOf(order.path, work);
    return listLine({work.name, work.file, standing.there, standing.rows, source}, standing.rest);
}
