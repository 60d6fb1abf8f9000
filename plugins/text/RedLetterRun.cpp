#include "text/RedLetterRun.h"

#include <algorithm>

namespace {

constexpr qsizetype BridgedGap = 20;
constexpr qsizetype LargestNumber = 999; // three digits
constexpr char16_t Marker = 30;

bool isFarFrom(const RedRun& run, const RedRun& next) {
    return next.start - run.end() > BridgedGap;
}

bool isShorter(const RedRun& run, const RedRun& other) {
    return run.length < other.length;
}

QString threeDigits(qsizetype number) {
    return QString::number(number).rightJustified(3, u'0');
}

} // namespace

std::optional<RedRun> runToStore(const QList<RedRun>& runs) {
    if (runs.isEmpty())
        return std::nullopt;
    const bool apart = std::adjacent_find(runs.begin(), runs.end(), isFarFrom) != runs.end();
    if (apart)
        return *std::max_element(runs.begin(), runs.end(), isShorter);
    return RedRun{runs.first().start, runs.last().end() - runs.first().start};
}

QString storedBody(const MarkedText& verse) {
    const std::optional<RedRun> run = runToStore(verse.redRuns());
    if (!run || run->start > LargestNumber)
        return verse.text();
    const qsizetype length = std::min(run->length, LargestNumber);
    return QChar(Marker) + threeDigits(run->start) + u':' + threeDigits(length) + verse.text();
}
