// Makes the file of the names and their meanings from Strong's dictionaries.
#pragma once

#include "makers/Maker.h"
#include "readers/SwordEntries.h"

class NamesMaker final : public Maker {
public:
    // `additions` is a table of the project's own: name, meaning (DataLines.h).
    NamesMaker(
        std::unique_ptr<SwordEntries> hebrew, std::unique_ptr<SwordEntries> greek,
        QString additions);

    // One row a name, in alphabetical order; the meanings of several bearers stand one behind the
    // other, those of the additions first. Error::NotADatabase for a dictionary without an entry.
    MadeFile make(const Order& order, Progress& progress) override;

private:
    std::unique_ptr<SwordEntries> m_hebrew;
    std::unique_ptr<SwordEntries> m_greek;
    QString m_additions;
};
