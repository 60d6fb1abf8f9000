// A list of lines of which one may be selected.
#pragma once

#include "controls/Control.h"

#include <QListWidget>

class ListBox : public Control<QListWidget> {
public:
    // Raised when code changes the selection, and by every pick of the user, of the same row too.
    Event<> Click;
    Event<> DblClick;

    ListBox(QWidget* parent, const ControlText& text);

    // -1 without a selection; the focus alone selects nothing. Setting the row that is selected
    // already raises nothing; an index out of range is Error::InvalidPropertyValue and changes
    // nothing.
    int ListIndex() const;
    void setListIndex(int index);

    int ListCount() const { return count(); }

    // Error::InvalidPropertyValue for a row that the list lacks.
    QString List(int index) const;

    // The selected row's text, empty without a selection.
    QString Text() const;

    // Neither raises Click; a cleared list has no selection.
    void AddItem(const QString& item) { addItem(item); }
    void Clear() { clear(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    static constexpr int NotPressed = -2;

    int m_rowAtPress = NotPressed;
};
