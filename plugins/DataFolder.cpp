#include "DataFolder.h"

#include "Progress.h"
#include "basic/Error.h"
#include "desktop/HostPath.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>

using namespace Qt::StringLiterals;

QString madeFolder(const QString& folder) {
    QString path = QDir::cleanPath(QDir(hostPath(folder)).absolutePath());
    if (!QDir().mkpath(path))
        throw Error(Error::PathAccess, u"The folder %1 cannot be made."_s.arg(path));
    return path;
}

Order orderFor(const QString& folder, const QString& file) {
    const QString path = hostPath(folder + u'/' + file);
    return {path, QFileInfo::exists(path)};
}

void makeAndTell(
    const QString& file, const Order& order, const std::function<std::unique_ptr<Maker>()>& open,
    Console& console) {
    QElapsedTimer clock;
    clock.start();
    MadeFile made;
    {
        Progress progress(console, file);
        made = open()->make(order, progress);
    }
    const QString seconds = QString::number(double(clock.elapsed()) / 1000, 'f', 1);
    for (const QString& remark : made.remarks)
        writeLine(console.out, u"%1: %2"_s.arg(file, remark));
    writeLine(
        console.out, u"%1: %2 rows, %3 s"_s.arg(order.path, QString::number(made.rows), seconds));
}
