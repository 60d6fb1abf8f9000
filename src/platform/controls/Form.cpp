#include "controls/Form.h"

#include "controls/CommandButton.h"
#include "desktop/Desktop.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QWindow>
#include <algorithm>

namespace {

// Shows each key to the form that it is meant for, before the control with the focus gets it.
class KeyFilter final : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool pressed = event->type() == QEvent::KeyPress;
        if ((!pressed && event->type() != QEvent::ShortcutOverride) || !watched->isWidgetType())
            return false;
        auto* form = qobject_cast<Form*>(static_cast<QWidget*>(watched)->window());
        if (!form || qobject_cast<QMenuBar*>(watched)) // a menu bar goes through its menus
            return false;
        auto& key = static_cast<QKeyEvent&>(*event);
        if (!pressed)
            return refuseOverride(*form, key);
        // A key that nobody wants climbs to the form; only its first station counts.
        const QWidget* first = form->focusWidget() ? form->focusWidget() : form;
        return form->KeyPreview() && watched == first && form->previewKey(key);
    }

private:
    // A text box would take some of the window's shortcuts for itself.
    static bool refuseOverride(const Form& form, QKeyEvent& key) {
        if (!form.hasShortcut(QKeySequence(key.keyCombination())))
            return false;
        key.ignore();
        return true;
    }
};

void installKeyFilter() {
    static QPointer<KeyFilter> filter;
    if (filter)
        return;
    filter = new KeyFilter(qApp);
    qApp->installEventFilter(filter);
}

// Over the middle of its owner, as far as the screen allows.
QPoint placeOver(const QWidget& owner, const QWidget& window) {
    const QRect screen = owner.screen()->availableGeometry();
    const QPoint corner = owner.geometry().center() - window.rect().center();
    const auto within = [](int value, int low, int high) {
        return std::max(low, std::min(value, high));
    };
    return {
        within(corner.x(), screen.left(), screen.right() - window.width()),
        within(corner.y(), screen.top(), screen.bottom() - window.height())};
}

} // namespace

Form::Form(const QString& name)
    : QWidget(nullptr, Qt::Window)
    , m_fontSize(font().pointSizeF()) {
    setObjectName(name);
    installKeyFilter();
}

void Form::setFontSize(double points) {
    if (isFontSize(points))
        m_fontSize = points;
}

void Form::showHourglass() {
    setCursor(Qt::WaitCursor);
}

void Form::showNormalPointer() {
    unsetCursor();
}

void Form::Load() {
    if (m_state != State::Made)
        return;
    m_state = State::Loaded;
    Form_Load();
}

void Form::Show() {
    Load();
    if (m_state == State::Unloaded)
        return;
    show();
    raise();
    activateWindow();
}

void Form::ShowModal() {
    Load();
    if (m_state != State::Unloaded)
        desktop().runModal(*this);
}

void Form::Unload() {
    if (m_state == State::Unloaded)
        return;
    const bool loaded = m_state == State::Loaded;
    m_state = State::Unloaded;
    if (loaded)
        Form_Unload();
    hide();
    if (m_whenUnloaded)
        m_whenUnloaded();
    deleteLater();
}

void Form::moveFocus(QWidget& widget, FocusListener& listener) {
    if (m_focusWidget == &widget)
        return;
    FocusListener* left = m_focusWidget ? m_focusListener : nullptr;
    m_focusWidget = &widget;
    m_focusListener = &listener;
    if (left)
        left->raiseLostFocus();
    listener.raiseGotFocus();
}

bool Form::hasShortcut(const QKeySequence& keys) const {
    const QList<QAction*> items = findChildren<QAction*>();
    return std::ranges::any_of(items, [&](const QAction* item) {
        return item->isEnabled() && !item->shortcut().isEmpty() && item->shortcut() == keys;
    });
}

bool Form::previewKey(QKeyEvent& event) {
    int code = keyCodeOf(event);
    if (code == 0)
        return false; // a key that the program has no code for
    if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab)
        return false; // it leads to the next control, and is no key of this one
    runHandler([&] { Form_KeyDown(code, shiftOf(event)); });
    return code == 0;
}

void Form::raiseGotFocus() {
    Form_GotFocus();
}

void Form::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isLoaded())
        return;
    runHandler([this] {
        if (isActiveWindow())
            Form_Activate();
        else
            windowLeft();
    });
}

void Form::closeEvent(QCloseEvent* event) {
    if (programHasEnded())
        return;
    event->ignore();
    if (CommandButton* button = closingButton())
        button->setValue(true);
    else
        runHandler([this] { Unload(); });
}

void Form::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    focusReached(*this, *this);
}

// A window belongs to the one that it was called from: it stands before it, and over it unless it
// has a place of its own.
void Form::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    const QWidget* owner = QApplication::activeWindow();
    if (event->spontaneous() || !owner || owner == this)
        return;
    windowHandle()->setTransientParent(owner->windowHandle());
    if (!testAttribute(Qt::WA_Moved))
        move(placeOver(*owner, *this));
}

void Form::keyPressEvent(QKeyEvent* event) {
    CommandButton* button = event->key() == Qt::Key_Escape ? closingButton() : nullptr;
    if (button)
        button->setValue(true);
    else
        QWidget::keyPressEvent(event);
}

void Form::mousePressEvent(QMouseEvent* event) {
    QWidget::mousePressEvent(event);
    runHandler([this] { Form_Click(); });
}

void Form::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    runHandler([this] { Form_Paint(); });
}

void Form::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    runHandler([this] { Form_Resize(); });
}
