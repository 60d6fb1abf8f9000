// A desktop that plays a test's script: what the program asks must be what the test expects next,
// and everything that the test expects must be asked.
#pragma once

#include "desktop/Desktop.h"

#include <QStringList>
#include <deque>
#include <functional>

class ScriptedDesktop final : public Desktop {
public:
    // Becomes the desktop in use for as long as it lives.
    ScriptedDesktop();

    // Fails the test for each expected thing that did not happen.
    ~ScriptedDesktop() override;

    // The next message box shall say just this; it is answered so. The action looks about while the
    // box is up.
    void expectMessage(
        const Message& message, Answer answer = Answer::Ok, std::function<void()> meanwhile = {});

    // The next modal window shall open; the action plays its user. Afterwards the window must be
    // closed.
    void expectWindow(std::function<void(QWidget&)> user);

    // The next menu shall open; the action plays its user.
    void expectMenu(std::function<void(QMenu&)> user);

    // The next link that leaves the program shall be this one.
    void expectLink(const QString& link);

    // The print dialog shall open next. The user prints into a PDF file, or cancels if it has no
    // name.
    void expectPrinter(const QString& file);

    // The program shall end.
    void expectEnd();

    Answer showMessage(const Message& message) override;
    void runModal(QWidget& window) override;
    void openLink(const QString& link) override;
    void runMenu(QMenu& menu, const QPoint& place) override;
    void showHelp(const QString& helpFile, HelpCommand command, int context) override;
    void closeHelp(const QString& helpFile) override;
    void setClipboardText(const QString& text) override { clipboard = text; }
    std::unique_ptr<QPagedPaintDevice> choosePrinter() override;
    QDateTime now() override { return clock; }
    void beep() override { ++beeps; }
    [[noreturn]] void endProgram() override;

    QDateTime clock{QDate(2003, 4, 5), QTime(6, 7, 8)};
    int beeps = 0;
    QString clipboard;
    QStringList closedHelpFiles;
    std::function<void()> whenHelpCloses;
    QStringList shownHelp; // "file 0" for the contents, "file topic" for a topic

private:
    struct Event {
        enum class Kind { Message, Window, Menu, Link, Printer, End };
        Kind kind = Kind::Message;
        Message message;
        Answer answer = Answer::Ok;
        std::function<void(QWidget&)> user;
        QString link;
        std::function<void(QMenu&)> menuUser;
        std::function<void()> meanwhile;
    };

    // The next expected event if it is of this kind; otherwise the test fails and the answer is an
    // event that does no harm.
    Event next(Event::Kind kind, const QString& description);

    std::deque<Event> m_script;
};
