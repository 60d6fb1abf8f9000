// Two panes with a bar between them that the user can drag.
#pragma once

#include "controls/Control.h"

#include <QSplitter>

class Splitter : public QSplitter {
    Q_OBJECT

public:
    // Raised when the user has moved the bar.
    Event<> Moved;

    // Split by height: the panes stand one above the other. Split by width: side by side.
    enum Orientation { ByHeight = 0, ByWidth = 1 };

    Splitter(QWidget* parent, QStringView name, Orientation orientation);

    Orientation splitOrientation() const {
        return orientation() == Qt::Vertical ? ByHeight : ByWidth;
    }

    // The size of the first pane along the split, and of both with the bar, in device-independent
    // pixels. A position that the panes' least sizes do not allow moves to the nearest that they
    // do.
    int Position() const;
    void setPosition(int position);
    int length() const;

    // The first pane's part of the length, as it was last set by code or by the user; the toolkit's
    // own fitting of panes to a new length leaves it.
    double share() const { return m_share; }
    void setShare(double share);

private:
    double m_share = 0.5;
};
