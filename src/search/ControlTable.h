// Control arrays from tables: one row a control.
#pragma once

#include "controls/Control.h"
#include "controls/ControlArray.h"

#include <span>

struct ControlRow {
    int index;
    QStringView caption = {};
    QStringView toolTip = {};
};

// Adds the controls of a table to an array, in their order; each is named like "txtQuery(0)".
template <class Control>
void addControls(
    ControlArray<Control>& array, QWidget& parent, const QString& name,
    std::span<const ControlRow> rows) {
    for (const ControlRow& row : rows) {
        const QString element = name + u'(' + QString::number(row.index) + u')';
        array.add(
            row.index,
            std::make_unique<Control>(&parent, ControlText{element, row.caption, row.toolTip}));
    }
}
