// Boxes that the user types in: TextBox for one line, MultilineTextBox for several.
#pragma once

#include "controls/Control.h"

#include <QLineEdit>
#include <QPlainTextEdit>

class TextBox : public Control<QLineEdit> {
public:
    // By typing or by code, when the text has changed.
    Event<> Change;

    TextBox(QWidget* parent, const ControlText& text);

    QString Text() const { return text(); }
    void setText(const QString& text) { QLineEdit::setText(text); }

    // Selects `length` characters from the 0-based `start`.
    void select(int start, int length) { setSelection(start, length); }
};

class MultilineTextBox : public Control<QPlainTextEdit> {
public:
    Event<> Change;

    MultilineTextBox(QWidget* parent, const ControlText& text);

    // Every character as it was set or typed; lines end in "\n".
    QString Text() const;

    // Replaces the text, with nothing left to undo; the caret goes to its start.
    void setText(const QString& text);

    void setForeColor(const QColor& color) { setPaletteColor(QPalette::Text, color); }
    void setBackColor(const QColor& color) { setPaletteColor(QPalette::Base, color); }

protected:
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    void setPaletteColor(QPalette::ColorRole role, const QColor& color);

    bool m_isComposing = false;
};
