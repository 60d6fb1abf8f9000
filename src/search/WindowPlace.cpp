#include "search/WindowPlace.h"

#include "controls/Form.h"

#include <QEvent>
#include <QScreen>

namespace {

// What the window leaves free at the right, and below, where the system's own bar stands.
constexpr int RightTwips = 100;
constexpr int BottomTwips = 390;

void moveToCorner(Form& window) {
    const QRect screen = window.screen()->geometry();
    const QSize size = window.frameGeometry().size();
    window.move(
        screen.x() + screen.width() - size.width() - twips(RightTwips),
        screen.y() + screen.height() - twips(BottomTwips) - size.height());
}

// The system's frame around a window is known once the window has come up.
class FrameWatch final : public QObject {
public:
    explicit FrameWatch(Form& window)
        : QObject(&window)
        , m_window(window) {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* /*window*/, QEvent* event) override {
        if (event->type() == QEvent::WindowActivate) {
            m_window.removeEventFilter(this);
            moveToCorner(m_window);
            deleteLater();
        }
        return false;
    }

private:
    Form& m_window;
};

} // namespace

void placeInCorner(Form& window) {
    window.adjustSize();
    moveToCorner(window);
    new FrameWatch(window);
}
