// The rows of a dictionary while they are gathered: one for each headword, whatever its case, in
// alphabetical order, since windows list neighbours in stored order.
#pragma once

#include <QString>
#include <map>

// Headwords compare without case, and by case only where nothing else differs.
struct HeadwordOrder {
    bool operator()(const QString& left, const QString& right) const {
        return left.compare(right, Qt::CaseInsensitive) < 0;
    }
};

template <class Entry>
using Headwords = std::map<QString, Entry, HeadwordOrder>;
