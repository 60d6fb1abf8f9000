#include "Workshop.h"

#include "Interruption.h"
#include "Progress.h"
#include "basic/Error.h"
#include "desktop/HostPath.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

void makeFolder(const QString& folder) {
    if (!QDir().mkpath(folder))
        throw Error(Error::PathAccess, u"The folder %1 cannot be made."_s.arg(folder));
}

QString column(QStringView text, int width) {
    return text.toString().leftJustified(width);
}

} // namespace

Workshop::Workshop(const WorkshopOptions& options, Console& console)
    : m_options(options)
    , m_console(console) {
    m_options.folder = QDir::cleanPath(QDir(hostPath(options.folder)).absolutePath());
}

bool Workshop::make(const QList<const Work*>& works) {
    try {
        makeFolder(m_options.folder);
        bool allMade = true;
        for (const Work* work : works)
            allMade = makeWork(*work) && allMade;
        return allMade;
    } catch (const Interrupted&) {
        writeLine(m_console.errors, u"Stopped. What was not finished has left nothing behind."_s);
    } catch (const Error& error) {
        writeLine(m_console.errors, error.text());
    }
    return false;
}

bool Workshop::makeWork(const Work& work) {
    const Order order = orderFor(work);
    if (order.replaces && (work.isTheUsers || !m_options.force)) {
        const QString way = work.isTheUsers ? QString() : u"; --force makes it anew"_s;
        writeLine(
            m_console.out, u"%1 is there already and stays as it is, with what its owner wrote "
                           u"into it%2."_s.arg(order.path, way));
        return true;
    }
    try {
        makeFile(work, order);
        return true;
    } catch (const Error& error) {
        writeLine(m_console.errors, u"%1 was not made: %2"_s.arg(work.file, error.text()));
        return false;
    }
}

void Workshop::makeFile(const Work& work, const Order& order) {
    QElapsedTimer clock;
    clock.start();
    MadeFile made;
    {
        Progress progress(m_console, work.file);
        made = work.maker(work, m_options.moduleFolders)->make(order, progress);
    }
    const QString seconds = QString::number(double(clock.elapsed()) / 1000, 'f', 1);
    for (const QString& remark : made.remarks)
        writeLine(m_console.out, u"%1: %2"_s.arg(work.file, remark));
    writeLine(
        m_console.out, u"%1: %2 rows, %3 s"_s.arg(order.path, QString::number(made.rows), seconds));
}

// The program finds its files without regard to case, so a file in another case is the same file.
Order Workshop::orderFor(const Work& work) const {
    const QString path = hostPath(m_options.folder + u'/' + work.file);
    return {path, QFileInfo::exists(path)};
}

void Workshop::list() const {
    const auto line = [this](
                          QStringView name, QStringView file, QStringView state,
                          QStringView package, QStringView licence) {
        const QString text = column(name, 10) + column(file, 14) + column(state, 8)
                             + column(package, 20) + licence.toString();
        writeLine(m_console.out, text);
    };
    writeLine(m_console.out, u"Data files in %1:"_s.arg(m_options.folder));
    line(u"WORK", u"FILE", u"THERE", u"PACKAGE", u"LICENCE");
    for (const Work& work : works())
        line(
            QString(work.name), QString(work.file), orderFor(work).replaces ? u"yes" : u"no",
            work.package.isEmpty() ? u"(none)"_s : QString(work.package), QString(work.licence));
}
