// An empty main window with a text edit: shown, painted, and gone.
#include <QApplication>
#include <QFile>
#include <QMainWindow>
#include <QTextEdit>
#include <cstdio>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QMainWindow window;
    QTextEdit edit;
    window.setCentralWidget(&edit);
    window.resize(1100, 760);
    window.show();
    QApplication::processEvents();
    window.repaint();
    QApplication::processEvents();
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (QByteArray line = status.readLine(); !line.isEmpty(); line = status.readLine()) {
            if (line.startsWith("VmRSS:"))
                std::printf("%ld\n", line.mid(6).trimmed().split(' ').constFirst().toLong());
        }
    }
    return 0;
}
