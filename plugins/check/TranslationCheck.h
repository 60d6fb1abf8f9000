// The verses of a translation: how many there are, and which of them no page can show.
#pragma once

#include "check/CheckReport.h"
#include "store/Recordset.h"
#include "text/BookTable.h"

#include <set>

class TranslationCheck {
public:
    explicit TranslationCheck(CheckReport& report)
        : m_report(report) {}

    // A row of tblMain; rows come in the order of the index.
    void take(Recordset& row);

    // Adds the sums to the report.
    void finish() const;

private:
    void checkPlace(const VerseAddress& address, const QString& name);
    void checkBody(const QString& body, const QString& name);

    CheckReport& m_report;
    VerseAddress m_last;
    std::set<int> m_books;
    std::set<std::pair<int, int>> m_chapters;
    qint64 m_verses = 0;
    qint64 m_redVerses = 0;
    qint64 m_notes = 0;
};
