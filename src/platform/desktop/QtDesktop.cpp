#include "desktop/QtDesktop.h"

#include <QApplication>
#include <QDesktopServices>
#include <QEventLoop>
#include <QMessageBox>
#include <QUrl>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

QMessageBox::Icon iconOf(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Stop:
        return QMessageBox::Critical;
    case MessageIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

Answer answerOf(MessageButtons buttons, int pressed) {
    if (buttons == MessageButtons::Ok)
        return Answer::Ok;
    return pressed == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

// Tells when a window is hidden or gone, whichever way that comes about.
class HiddenWatch final : public QObject {
public:
    HiddenWatch(QWidget& window, QEventLoop& loop)
        : m_loop(loop) {
        window.installEventFilter(this);
        connect(&window, &QObject::destroyed, &loop, &QEventLoop::quit);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Hide && !event->spontaneous())
            m_loop.quit();
        return QObject::eventFilter(watched, event);
    }

private:
    QEventLoop& m_loop;
};

} // namespace

Answer QtDesktop::showMessage(const Message& message) {
    QMessageBox box(QApplication::activeWindow());
    box.setIcon(iconOf(message.icon));
    box.setWindowTitle(message.title);
    box.setTextFormat(Qt::PlainText);
    box.setText(QString(message.text).replace(u"\r\n"_s, u"\n"_s));
    box.setStandardButtons(
        message.buttons == MessageButtons::YesNo ? QMessageBox::Yes | QMessageBox::No
                                                 : QMessageBox::Ok);
    if (message.buttons == MessageButtons::YesNo)
        box.setEscapeButton(QMessageBox::No);
    return answerOf(message.buttons, box.exec());
}

void QtDesktop::runModal(QWidget& window) {
    QEventLoop loop;
    const HiddenWatch watch(window, loop);
    window.setWindowModality(Qt::ApplicationModal);
    window.show();
    if (window.isVisible())
        loop.exec(QEventLoop::DialogExec);
}

void QtDesktop::openLink(const QString& link) {
    QDesktopServices::openUrl(QUrl(link));
}

void QtDesktop::closeHelp(const QString& helpFile) {
    // The system's viewer is a program of its own and outlives this one.
    Q_UNUSED(helpFile)
}

void QtDesktop::beep() {
    QApplication::beep();
}

void QtDesktop::endProgram() {
    throw ProgramEnd();
}
