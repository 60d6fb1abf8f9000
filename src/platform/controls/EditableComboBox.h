// A box to type in, with a list of texts to pick from.
#pragma once

#include "controls/ComboBox.h"

class EditableComboBox : public ComboBox {
public:
    // The text stays as it is typed: it is neither completed nor added to the list.
    EditableComboBox(QWidget* parent, const ControlText& text);

    // What is typed or picked is ComboBox::Text(); ListIndex() is the row that was picked last, and
    // tells nothing of what was typed since.
    void setText(const QString& text) { setEditText(text); }

    // Leave the typed text alone.
    void AddItem(const QString& item);
    void AddItems(const QStringList& items);

    // Takes the typed text too.
    void Clear();
};
