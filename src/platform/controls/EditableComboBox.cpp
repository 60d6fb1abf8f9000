#include "controls/EditableComboBox.h"

EditableComboBox::EditableComboBox(QWidget* parent, const ControlText& text)
    : ComboBox(parent, text) {
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
}

void EditableComboBox::AddItem(const QString& item) {
    AddItems({item});
}

void EditableComboBox::AddItems(const QStringList& items) {
    const QString typed = Text();
    ComboBox::AddItems(items);
    setText(typed);
}

void EditableComboBox::Clear() {
    ComboBox::Clear();
    setText({});
}
