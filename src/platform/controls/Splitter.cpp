#include "controls/Splitter.h"

Splitter::Splitter(QWidget* parent, QStringView name, Orientation orientation)
    : QSplitter(orientation == ByHeight ? Qt::Vertical : Qt::Horizontal, parent) {
    setObjectName(name.toString());
    setChildrenCollapsible(false);
    connect(this, &QSplitter::splitterMoved, this, [this] {
        m_share = static_cast<double>(Position()) / length();
        Moved.raise();
    });
}

int Splitter::Position() const {
    return count() > 0 ? sizes().constFirst() : 0;
}

void Splitter::setPosition(int position) {
    setSizes({position, length() - position - handleWidth()});
}

int Splitter::length() const {
    return orientation() == Qt::Vertical ? height() : width();
}

void Splitter::setShare(double share) {
    m_share = share;
    setPosition(static_cast<int>(share * length()));
}
