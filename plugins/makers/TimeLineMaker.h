// Makes the file of the time line from the project's own tables of years.
#pragma once

#include "makers/Maker.h"

class TimeLineMaker final : public Maker {
public:
    // Two tables of year and event (DataLines.h), in any order.
    TimeLineMaker(QString yearsBeforeChrist, QString yearsOfTheLord)
        : m_before(std::move(yearsBeforeChrist))
        , m_after(std::move(yearsOfTheLord)) {}

    // The rows of each era in the order of time, one a year, counted from 1 without a gap. A
    // closing row without year and event ends each table: slider and spin button never reach the
    // last row, and no search should. Error::InvalidPropertyValue for a line that cannot be read.
    MadeFile make(const Order& order, Progress& progress) override;

private:
    QString m_before;
    QString m_after;
};
