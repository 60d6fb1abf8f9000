// Everything that leaves the program goes through this interface: message boxes, modal windows,
// links, the help viewer, the end of the program. QtDesktop is the real one; tests put their own
// in its place.
#pragma once

#include <QDateTime>
#include <QString>
#include <memory>

class QMenu;
class QPagedPaintDevice;
class QPoint;
class QWidget;

enum class MessageIcon { None, Information, Question, Exclamation, Stop };
enum class MessageButtons { Ok, YesNo };
enum class Answer { Ok, Yes, No };

enum class HelpCommand { Contents, Context };

struct Message {
    QString text;
    QString title;
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::Ok;
};

// Thrown by endProgram to leave every routine that is under way. It is no Error: nothing ignores
// it, and it ends at the border between events and handlers.
class ProgramEnd {};

class Desktop {
public:
    Desktop() = default;
    virtual ~Desktop() = default;
    Q_DISABLE_COPY_MOVE(Desktop)

    // Shows a message and waits for the answer. Closing the box answers Ok or No.
    virtual Answer showMessage(const Message& message) = 0;

    // Shows a window before which no other takes input, and returns when it is hidden or gone.
    virtual void runModal(QWidget& window) = 0;

    // Hands a web or mail link to the system. Failures are the system's to show.
    virtual void openLink(const QString& link) = 0;

    // Opens a menu at a place of the screen and returns when it is closed. What the user chose runs
    // inside this call.
    virtual void runMenu(QMenu& menu, const QPoint& place) = 0;

    // Opens the help viewer, at its contents or at a topic; the viewer itself tells the user about
    // a file that is not there.
    virtual void showHelp(const QString& helpFile, HelpCommand command, int context) = 0;

    // Closes the viewer that shows this help file, if there is one.
    virtual void closeHelp(const QString& helpFile) = 0;

    // The text on the clipboard gives way to this one.
    virtual void setClipboardText(const QString& text) = 0;

    // Lets the user choose and set up a printer for what he has selected; null if he cancels.
    // Printing starts with the first drawing on it and ends with its last owner.
    virtual std::unique_ptr<QPagedPaintDevice> choosePrinter() = 0;

    virtual QDateTime now() = 0;

    virtual void beep() = 0;

    // Ends the program: throws ProgramEnd.
    [[noreturn]] virtual void endProgram() = 0;
};

// The desktop in use. There is one from the start of the program to its end.
Desktop& desktop();
void setDesktop(Desktop* desktop);

// Shows a message box with the program's name as its title if none is given.
Answer MsgBox(
    const QString& text, MessageIcon icon, const QString& title = {},
    MessageButtons buttons = MessageButtons::Ok);
