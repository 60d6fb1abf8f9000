// A strip of buttons that share one handler, which knows them by their keys.
#pragma once

#include "controls/CommandButton.h"

#include <QList>
#include <map>
#include <memory>

struct KeyedButton {
    QString key;
    QString caption;
    QString toolTip;
    QString picture; // its file
};

class ToolBar : public Control<QWidget> {
public:
    // The key of the button that was pressed.
    Event<QString> ButtonClick;

    // From left to right. A button is named like the tool bar, with its key in brackets.
    ToolBar(QWidget* parent, const ControlText& text, const QList<KeyedButton>& buttons);

    // Error::SubscriptOutOfRange for a key that the tool bar lacks.
    PictureButton& Buttons(const QString& key) const;

private:
    std::map<QString, std::unique_ptr<PictureButton>> m_buttons;
};
