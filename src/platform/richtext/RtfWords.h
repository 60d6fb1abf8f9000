// The words of RTF that the reader knows.
#pragma once

#include "richtext/RtfInterpreter.h"

#include <QStringView>
#include <optional>
#include <string_view>

struct RtfWord {
    using Apply = void (*)(RtfInterpreter& rtf, int number);

    std::string_view name;
    int missingNumber; // what the word means without a number
    Apply apply;
};

// Null if the reader does not know the word.
const RtfWord* findRtfWord(QStringView name);

// Where the text of a group goes that begins with this word; none if it goes where it went.
std::optional<RtfInterpreter::Destination> rtfDestination(QStringView name);
