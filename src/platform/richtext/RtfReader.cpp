#include "richtext/RtfReader.h"

#include "richtext/RtfInterpreter.h"

using namespace Qt::StringLiterals;

bool isRtf(const QString& text) {
    return text.startsWith(R"({\rtf)"_L1);
}

RichText readRtf(const QString& text) {
    return isRtf(text) ? RtfInterpreter(text).read() : plainRichText(text);
}
