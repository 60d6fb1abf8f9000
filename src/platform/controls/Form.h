// A window of the program. Making a form is not loading it: a caller may set its properties first.
// It is loaded before it is first shown, and unloaded when it closes; then it is gone, and the next
// use of its name makes another one. A form may unload itself inside its own Form_Load or handlers;
// a later show of it does nothing.
#pragma once

#include "controls/Control.h"

#include <QPointer>
#include <QWidget>

class CommandButton;

class Form : public QWidget, public FocusListener {
    Q_OBJECT

public:
    explicit Form(const QString& name);

    QString Caption() const { return windowTitle(); }
    void setCaption(const QString& caption) { setWindowTitle(caption); }

    // With key preview on, Form_KeyDown sees each key before the control that has the focus.
    bool KeyPreview() const { return m_keyPreview; }
    void setKeyPreview(bool preview) { m_keyPreview = preview; }

    // The form's own font, in which it measures texts; its controls keep theirs. Points; a size
    // that no font can have changes nothing.
    double FontSize() const { return m_fontSize; }
    void setFontSize(double points);

    void showHourglass();
    void showNormalPointer();

    bool isLoaded() const { return m_state == State::Loaded; }
    void Load();
    void Show();

    // Shows the form before all others and returns when it is closed.
    void ShowModal();
    void Unload();

    // The focus has come to a control of this form, or to the form itself.
    void moveFocus(QWidget& widget, FocusListener& listener);

    // Offers a key to Form_KeyDown; true if it was dropped there.
    bool previewKey(QKeyEvent& event);

    // Whether an enabled item of its menus has this shortcut.
    bool hasShortcut(const QKeySequence& keys) const;

    // For the keeper of the forms: called once when the form is unloaded.
    void whenUnloaded(std::function<void()> action) { m_whenUnloaded = std::move(action); }

protected:
    virtual void Form_Load() {}
    virtual void Form_Unload() {}
    virtual void Form_Activate() {}
    // Another window has taken the keyboard.
    virtual void windowLeft() {}
    virtual void Form_Resize() {}
    virtual void Form_Paint() {}
    virtual void Form_GotFocus() {}
    virtual void Form_Click() {}
    virtual void Form_KeyDown(int& /*keyCode*/, int /*shift*/) {}

    // The button that Escape and the title bar press; without one they unload the form.
    virtual CommandButton* closingButton() { return nullptr; }

    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    enum class State { Made, Loaded, Unloaded };

    void raiseGotFocus() override;
    void raiseLostFocus() override {}

    State m_state = State::Made;
    bool m_keyPreview = false;
    double m_fontSize;
    std::function<void()> m_whenUnloaded;
    QPointer<QWidget> m_focusWidget;
    FocusListener* m_focusListener = nullptr;
};

// Twentieths of a point (1/1440 inch) in device-independent pixels.
constexpr int twips(int count) {
    return count / 15;
}
