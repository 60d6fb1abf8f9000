// How far each book of a text goes. One that ends early tells of a text that was cut off, or that
// never was whole.
#pragma once

#include "readers/NameList.h"
#include "text/BookTable.h"

#include <algorithm>
#include <array>

class BookEnds {
public:
    void see(const VerseAddress& address) {
        int& last = m_lastChapters.at(address.book);
        last = std::max(last, address.chapter);
    }

    // A book that the text lacks as a whole is none that ends early.
    void report(QStringList& remarks) const {
        NameList early;
        for (const Book& book : books()) {
            const int last = m_lastChapters.at(book.number);
            if (last > 0 && last < book.chapters)
                early.add(
                    QStringLiteral("%1 (%2 of %3)").arg(book.name).arg(last).arg(book.chapters));
        }
        early.report(remarks, QStringLiteral("books that end before their last chapter"));
    }

private:
    std::array<int, 67> m_lastChapters{}; // of each book, by its number
};
