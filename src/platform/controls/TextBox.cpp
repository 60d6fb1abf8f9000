#include "controls/TextBox.h"

TextBox::TextBox(QWidget* parent, const ControlText& text)
    : Control(parent, text) {
    connect(this, &QLineEdit::textChanged, this, [this] { Change.raise(); });
}

MultilineTextBox::MultilineTextBox(QWidget* parent, const ControlText& text)
    : Control(parent, text) {
    viewport()->setMouseTracking(true);
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { Change.raise(); });
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
