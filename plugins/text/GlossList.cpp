#include "text/GlossList.h"

#include <algorithm>

qsizetype topLevelIndexOf(QStringView text, QChar mark, qsizetype from) {
    int depth = 0;
    for (qsizetype at = from; at < text.size(); ++at) {
        const QChar character = text[at];
        if (character == mark && depth == 0)
            return at;
        if (character == u'(' || character == u'[')
            ++depth;
        else if (character == u')' || character == u']')
            depth = std::max(depth - 1, 0); // sources close brackets that they never opened
    }
    return -1;
}

QStringList topLevelParts(QStringView text, QChar mark) {
    QStringList parts;
    for (qsizetype start = 0; start <= text.size();) {
        qsizetype end = topLevelIndexOf(text, mark, start);
        if (end < 0)
            end = text.size();
        if (const QStringView part = text.sliced(start, end - start).trimmed(); !part.isEmpty())
            parts.append(part.toString());
        start = end + 1;
    }
    return parts;
}
