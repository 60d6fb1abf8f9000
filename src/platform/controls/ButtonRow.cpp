#include "controls/ButtonRow.h"

#include "controls/Form.h"

namespace {

// Sees the keys that nobody in the window has taken.
class EnterFilter final : public QObject {
public:
    EnterFilter(Form& window, CommandButton& button)
        : QObject(&button)
        , m_button(button) {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* /*window*/, QEvent* event) override {
        if (event->type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter)
            return false;
        m_button.click();
        return true;
    }

private:
    CommandButton& m_button;
};

} // namespace

QVBoxLayout* makeWindowColumn(Form& window) {
    auto* column = new QVBoxLayout(&window);
    column->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
    column->setSpacing(WindowSpacing);
    return column;
}

ButtonRow::ButtonRow(CommandButton* accept, CommandButton* cancel) {
    if (accept)
        addButton(accept, AcceptRole);
    if (cancel)
        addButton(cancel, RejectRole);
}

void ButtonRow::addOther(CommandButton& button) {
    addButton(&button, ActionRole);
}

void setDefaultButton(Form& window, CommandButton& button) {
    button.setDefault(true);
    new EnterFilter(window, button);
}
