#include "app/FirstPage.h"

#include <QApplication>
#include <QFile>
#include <QPixmap>
#include <QWidget>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

QString picturePath() {
    return qEnvironmentVariable("LUMENVIA_PICTURE");
}

// Lets the window be painted as on any other start.
void waitForPaint(QWidget& window) {
    QApplication::processEvents();
    window.repaint();
    QApplication::processEvents();
}

// Where the system tells; 0 elsewhere.
long residentMemory() {
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (QByteArray line = status.readLine(); !line.isEmpty(); line = status.readLine()) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').constFirst().toLong();
    }
    return 0;
}

bool takePicture(QWidget& window) {
    if (window.grab().save(picturePath(), "PNG"))
        return true;
    std::fprintf(stderr, "The picture %s cannot be written.\n", qPrintable(picturePath()));
    return false;
}

} // namespace

bool endsWithFirstPage() {
    return !picturePath().isEmpty() || qEnvironmentVariableIsSet("LUMENVIA_MEASURE");
}

int finishFirstPage(QWidget& window) {
    waitForPaint(window);
    if (qEnvironmentVariableIsSet("LUMENVIA_MEASURE"))
        std::printf("%ld\n", residentMemory());
    return picturePath().isEmpty() || takePicture(window) ? 0 : 1;
}
