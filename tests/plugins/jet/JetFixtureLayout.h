// Where the fields of a table lie in its rows.
#pragma once

#include "plugins/jet/JetFixture.h"

bool isFixed(const JetFieldOutline& field);
int fixedSize(JetType type);

// In the order of the numbers.
struct JetFixture::Layout {
    struct Place {
        JetFieldOutline field;
        int listed; // its place among the fields as they were given
        int offset; // of a fixed one; of a variable one, its place among these
    };
    const JetTableOutline& table;
    QList<Place> places;
    int fixedBytes = 0;
    int variableFields = 0;

    explicit Layout(const JetTableOutline& outline);

    // The most columns that a row has.
    int columns() const { return places.isEmpty() ? 0 : places.last().field.number + 1; }
};
