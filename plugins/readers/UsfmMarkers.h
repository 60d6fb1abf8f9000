// The markers of USFM, which USX and USFX use too.
#pragma once

#include "readers/OpenMarkup.h"

#include <QStringView>

struct UsfmMarker {
    MarkupKind kind;
    bool isBlock; // ends what is open in the paragraph before
};

// What a marker means, its number not counted ("q2" is "q"). One that is not known leaves its words
// as they are.
UsfmMarker usfmMarker(QStringView name);
