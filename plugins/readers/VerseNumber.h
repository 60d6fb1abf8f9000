// A verse as texts number it: "3", "3a" for a part of it, "3-4" for verses that stand together.
#pragma once

#include <QStringView>
#include <optional>

struct VerseNumber {
    int first = 0;
    bool isLaterPart = false; // "3b": what goes on after "3a"
    bool isPart = false;
    bool isRange = false;
};

// Nothing for a text that is no such number, or one that no int can hold.
std::optional<VerseNumber> readVerseNumber(QStringView text);

// A chapter's number, which has no parts.
std::optional<int> readChapterNumber(QStringView text);
