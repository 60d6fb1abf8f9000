#include "controls/ComboBox.h"

#include "basic/Error.h"

using namespace Qt::StringLiterals;

ComboBox::ComboBox(QWidget* parent, const ControlText& text)
    : Control(parent, text) {
    connect(this, &QComboBox::activated, this, [this] { Click.raise(); });
}

void ComboBox::setListIndex(int index) {
    if (index < -1 || index >= count())
        throw Error(Error::InvalidPropertyValue, u"Invalid property value"_s);
    if (index == currentIndex())
        return;
    setCurrentIndex(index);
    Click.raise();
}

QString ComboBox::List(int index) const {
    if (index < 0 || index >= count())
        throw Error(Error::InvalidPropertyValue, u"Invalid property value"_s);
    return itemText(index);
}

void ComboBox::AddItem(const QString& item) {
    AddItems({item});
}

void ComboBox::AddItems(const QStringList& items) {
    const int selected = currentIndex();
    addItems(items);
    setCurrentIndex(selected);
}

void ComboBox::Clear() {
    clear();
}
