// A drop-down list.
#pragma once

#include "controls/Control.h"

#include <QComboBox>

class ComboBox : public Control<QComboBox> {
public:
    // Raised when code changes the selection, and by every pick of the user, of the same row too.
    Event<> Click;

    ComboBox(QWidget* parent, const ControlText& text);

    // -1 without a selection. Setting the row that is selected already raises nothing, since a
    // handler may set its own list; an index out of range is Error::InvalidPropertyValue and
    // changes nothing.
    int ListIndex() const { return currentIndex(); }
    void setListIndex(int index);

    int ListCount() const { return count(); }

    // Error::InvalidPropertyValue for a row that the list lacks.
    QString List(int index) const;

    // The selected row's text, empty without a selection.
    QString Text() const { return currentText(); }

    // Neither raises Click: a row that is added to an empty list is not selected, and a cleared
    // list has no selection.
    void AddItem(const QString& item);
    void AddItems(const QStringList& items);
    void Clear();
};
