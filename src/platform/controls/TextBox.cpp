#include "controls/TextBox.h"

TextBox::TextBox(QWidget* parent, const ControlText& text)
    : Control(parent, text) {
    connect(this, &QLineEdit::textChanged, this, [this] { Change.raise(); });
}

MultilineTextBox::MultilineTextBox(QWidget* parent, const ControlText& text)
    : Control(parent, text) {
    viewport()->setMouseTracking(true);
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (!m_isComposing)
            Change.raise();
    });
}

// What an input method composes is shown in the box, and no part of its text until it is chosen.
void MultilineTextBox::inputMethodEvent(QInputMethodEvent* event) {
    const QString before = Text();
    m_isComposing = true;
    Control::inputMethodEvent(event);
    m_isComposing = false;
    if (Text() != before)
        Change.raise();
}

QString MultilineTextBox::Text() const {
    return document()->toRawText().replace(QChar::ParagraphSeparator, u'\n');
}

void MultilineTextBox::setText(const QString& text) {
    if (text != Text())
        setPlainText(text);
}

void MultilineTextBox::setPaletteColor(QPalette::ColorRole role, const QColor& color) {
    QPalette colors = palette();
    colors.setColor(role, color);
    setPalette(colors);
}
