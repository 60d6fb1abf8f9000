// A user who does anything: presses, picks and types at random in whatever window is open, answers
// every box, and closes modal windows again. The same seed does the same.
#pragma once

#include "desktop/Desktop.h"

#include <QHash>
#include <QStringList>
#include <random>

class QComboBox;
class Form;

class RandomUser final : public Desktop {
public:
    explicit RandomUser(unsigned seed)
        : m_random(seed) {}

    // One action in the main window or in the index beside it; it may open a modal window, in which
    // he goes on until it is closed.
    void act();

    // Every action so far, those in modal windows included.
    int actions() const { return m_actions; }

    // How often he has been in a modal window, by its name.
    int visits(const QString& window) const { return m_visits.value(window); }

    // The last actions, for a test that fails.
    QString story() const { return m_story.join(u'\n'); }

    // Ends every window but the main one.
    void closeWindows();

    Answer showMessage(const Message& message) override;
    void runModal(QWidget& window) override;
    void openLink(const QString& /*link*/) override {}
    void runMenu(QMenu& /*menu*/, const QPoint& /*place*/) override {}
    void showHelp(const QString&, HelpCommand, int) override {}
    void closeHelp(const QString& /*helpFile*/) override {}
    void setClipboardText(const QString& /*text*/) override {}
    std::unique_ptr<QPagedPaintDevice> choosePrinter() override;
    QDateTime now() override;
    void beep() override {}
    [[noreturn]] void endProgram() override { throw ProgramEnd(); }

private:
    int below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    template <class List>
    const auto& oneOf(const List& list) {
        return list[static_cast<size_t>(below(static_cast<int>(std::size(list))))];
    }
    void tell(const QString& action);

    void useAnyControl(QWidget& window);
    void use(QWidget& control);
    void type(QWidget& box);
    void pick(QComboBox& list);
    void command();
    void turn();
    void useLists();
    void useTree();
    void useIndex();

    std::mt19937 m_random;
    int m_actions = 0;
    QHash<QString, int> m_visits;
    QStringList m_story;
};
