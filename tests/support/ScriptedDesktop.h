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

    // The next message box shall say just this; it is answered so.
    void expectMessage(const Message& message, Answer answer = Answer::Ok);

    // The next modal window shall open; the action plays its user. Afterwards the window must be
    // closed.
    void expectWindow(std::function<void(QWidget&)> user);

    // The next link that leaves the program shall be this one.
    void expectLink(const QString& link);

    // The program shall end.
    void expectEnd();

    Answer showMessage(const Message& message) override;
    void runModal(QWidget& window) override;
    void openLink(const QString& link) override;
    void closeHelp(const QString& helpFile) override;
    void beep() override { ++beeps; }
    [[noreturn]] void endProgram() override;

    int beeps = 0;
    QStringList closedHelpFiles;

private:
    struct Event {
        enum class Kind { Message, Window, Link, End };
        Kind kind = Kind::Message;
        Message message;
        Answer answer = Answer::Ok;
        std::function<void(QWidget&)> user;
        QString link;
    };

    // The next expected event if it is of this kind; otherwise the test fails and the answer is an
    // event that does no harm.
    Event next(Event::Kind kind, const QString& description);

    std::deque<Event> m_script;
};
