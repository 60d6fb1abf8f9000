// Writes down what a window tells its user while a handler runs: each caption, and "wait" and
// "normal" for the pointer.
#pragma once

#include <QEvent>
#include <QStringList>
#include <QWidget>
#include <utility>

using namespace Qt::StringLiterals;

class WindowWatch final : public QObject {
public:
    explicit WindowWatch(QWidget& window)
        : m_window(window) {
        window.installEventFilter(this);
    }

    // Since the last call.
    QStringList takeSigns() { return std::exchange(m_signs, {}); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::WindowTitleChange)
            m_signs.append(m_window.windowTitle());
        else if (event->type() == QEvent::CursorChange)
            addPointer();
        return false;
    }

private:
    void addPointer() {
        const bool waits = m_window.cursor().shape() == Qt::WaitCursor;
        if (waits == m_waits)
            return;
        m_waits = waits;
        m_signs.append(waits ? u"wait"_s : u"normal"_s);
    }

    QWidget& m_window;
    QStringList m_signs;
    bool m_waits = false;
};
