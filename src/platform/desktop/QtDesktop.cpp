#include "desktop/QtDesktop.h"

#include "desktop/HostPath.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QEventLoop>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
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

// The start of a text that holds more than a screen could show above the buttons, such as one that
// the user has typed.
QString shortened(const QString& text) {
    constexpr qsizetype MostLines = 20;
    constexpr qsizetype MostCharacters = 600;
    const QString start = text.section(u'\n', 0, MostLines - 1).left(MostCharacters);
    return start == text ? text : start + u"…"_s;
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
    box.setText(shortened(QString(message.text).remove(u'\r')));
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

void QtDesktop::runMenu(QMenu& menu, const QPoint& place) {
    menu.exec(place);
}

// The system's viewer finds its own way to the topic.
void QtDesktop::showHelp(const QString& helpFile, HelpCommand /*command*/, int /*context*/) {
    const QFileInfo file(hostPath(helpFile));
    if (file.isFile())
        QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath()));
    else
        showMessage(
            {u"The help file is not there: "_s + helpFile, u"Help"_s, MessageIcon::Exclamation});
}

// The system's viewer is a program of its own and outlives this one.
void QtDesktop::closeHelp(const QString& /*helpFile*/) {}

void QtDesktop::setClipboardText(const QString& text) {
    QApplication::clipboard()->setText(text);
}

std::unique_ptr<QPagedPaintDevice> QtDesktop::choosePrinter() {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    QPrintDialog dialog(printer.get(), QApplication::activeWindow());
    // The selection is all there is to print, so there are no pages to choose from.
    dialog.setOptions(QAbstractPrintDialog::PrintToFile);
    if (dialog.exec() != QDialog::Accepted)
        return nullptr;
    return printer;
}

QDateTime QtDesktop::now() {
    return QDateTime::currentDateTime();
}

void QtDesktop::beep() {
    QApplication::beep();
}

void QtDesktop::endProgram() {
    throw ProgramEnd();
}
