#include "support/ScriptedDesktop.h"

#include "controls/Handler.h"

#include <QMenu>
#include <QPdfWriter>
#include <QWidget>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

ScriptedDesktop::ScriptedDesktop() {
    setDesktop(this);
    forgetProgramEnd();
}

ScriptedDesktop::~ScriptedDesktop() {
    for (const Event& event : m_script) {
        ADD_FAILURE() << "expected, and did not happen: kind " << static_cast<int>(event.kind)
                      << " " << (event.message.text + event.link).toStdString();
    }
    setDesktop(nullptr);
    forgetProgramEnd();
}

void ScriptedDesktop::expectMessage(
    const Message& message, Answer answer, std::function<void()> meanwhile) {
    m_script.push_back({Event::Kind::Message, message, answer, {}, {}, {}, std::move(meanwhile)});
}

void ScriptedDesktop::expectWindow(std::function<void(QWidget&)> user) {
    m_script.push_back({Event::Kind::Window, {}, Answer::Ok, std::move(user), {}, {}, {}});
}

void ScriptedDesktop::expectLink(const QString& link) {
    m_script.push_back({Event::Kind::Link, {}, Answer::Ok, {}, link, {}, {}});
}

void ScriptedDesktop::expectPrinter(const QString& file) {
    m_script.push_back({Event::Kind::Printer, {}, Answer::Ok, {}, file, {}, {}});
}

void ScriptedDesktop::expectEnd() {
    m_script.push_back({Event::Kind::End, {}, Answer::Ok, {}, {}, {}, {}});
}

ScriptedDesktop::Event ScriptedDesktop::next(Event::Kind kind, const QString& description) {
    if (m_script.empty() || m_script.front().kind != kind) {
        ADD_FAILURE() << "nobody expected: " << description.toStdString();
        return {};
    }
    Event event = std::move(m_script.front());
    m_script.pop_front();
    return event;
}

Answer ScriptedDesktop::showMessage(const Message& message) {
    const Event event = next(Event::Kind::Message, u"message: "_s + message.text);
    EXPECT_EQ(message.text.toStdString(), event.message.text.toStdString());
    EXPECT_EQ(message.title.toStdString(), event.message.title.toStdString());
    EXPECT_EQ(message.icon, event.message.icon);
    EXPECT_EQ(message.buttons, event.message.buttons);
    if (event.meanwhile)
        event.meanwhile();
    return event.answer;
}

void ScriptedDesktop::runModal(QWidget& window) {
    const Event event = next(Event::Kind::Window, u"window: "_s + window.objectName());
    window.show();
    if (event.user)
        event.user(window);
    EXPECT_FALSE(window.isVisible()) << window.objectName().toStdString() << " was left open";
    window.hide();
}

void ScriptedDesktop::openLink(const QString& link) {
    EXPECT_EQ(link.toStdString(), next(Event::Kind::Link, u"link: "_s + link).link.toStdString());
}

void ScriptedDesktop::expectMenu(std::function<void(QMenu&)> user) {
    m_script.push_back({Event::Kind::Menu, {}, Answer::Ok, {}, {}, std::move(user), {}});
}

void ScriptedDesktop::runMenu(QMenu& menu, const QPoint& /*place*/) {
    const Event event = next(Event::Kind::Menu, u"menu: "_s + menu.objectName());
    if (event.menuUser)
        event.menuUser(menu);
}

void ScriptedDesktop::showHelp(const QString& helpFile, HelpCommand command, int context) {
    const int topic = command == HelpCommand::Context ? context : 0;
    shownHelp.append(helpFile + u' ' + QString::number(topic));
}

void ScriptedDesktop::closeHelp(const QString& helpFile) {
    closedHelpFiles.append(helpFile);
    if (whenHelpCloses)
        whenHelpCloses();
}

std::unique_ptr<QPagedPaintDevice> ScriptedDesktop::choosePrinter() {
    const QString file = next(Event::Kind::Printer, u"the print dialog"_s).link;
    return file.isEmpty() ? nullptr : std::make_unique<QPdfWriter>(file);
}

void ScriptedDesktop::endProgram() {
    next(Event::Kind::End, u"the end of the program"_s);
    throw ProgramEnd();
}
