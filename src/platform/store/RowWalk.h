// The position of a cursor among the rows of its source.
//
// Around the position it keeps a window: the rows that were read ahead in the direction of travel,
// and some behind. The window is good as long as no program has written to the file, which a look
// at the file's change counter tells without taking a lock; after a write it is read anew.
#pragma once

#include "store/RowSource.h"

#include <deque>

class RowWalk {
public:
    // Stands on the first row, if there is one.
    explicit RowWalk(std::unique_ptr<RowSource> source);

    RowSource& source() { return *m_source; }

    // The operations of the same names in Recordset.h, and what they promise.
    void moveFirst() { moveToEnd(Direction::Forward); }
    void moveLast() { moveToEnd(Direction::Backward); }
    void step(Direction direction);
    bool isBof();
    bool isEof();

    // Whether a current row was taken up and not left, though it may have been deleted since.
    bool isOnRow() const { return m_place == Place::OnRow; }

    // Whether the source has no row at all.
    bool isEmpty();

    // The current row as it now is. Errors: NoCurrentRecord, RecordDeleted.
    const Row& current();

    // The number of the current row, without a look at the file.
    qint64 currentNumber() const { return m_window[m_current].number; }

    // Stands on a row of the source. To be called in the transaction that read the row.
    void standOn(Row row);

    // Leaves the current row: without a place to go on from, or in the gap where the row was.
    void leave() { m_place = Place::Nowhere; }
    void leaveGap();

    // The current row has another number from now on.
    void renumberCurrent(qint64 number);

    // The greatest number of a row that was current; no value if none was.
    std::optional<qint64> farthest() const { return m_farthest; }

private:
    enum class Place { OnRow, Gap, BeforeFirst, BehindLast, Nowhere };

    std::optional<Row> rowAtEnd(Direction direction);
    bool standOnEnd(Direction direction);
    void moveToEnd(Direction direction);
    void stepFromEnd(Direction direction);
    bool mayStep(Direction direction) const;
    bool isWindowGood() const;
    bool stepInWindow(Direction direction);
    void readBeyond(Direction direction);
    void refreshCurrent();
    size_t nextReadAhead(Direction direction);
    void addToWindow(std::vector<Row> rows, Direction direction);
    void dropFarRows(Direction direction);
    void arriveAt(size_t place);

    std::unique_ptr<RowSource> m_source;
    Place m_place = Place::Nowhere;
    std::deque<Row> m_window; // in the source's order; holds the row of OnRow and of Gap
    size_t m_current = 0;     // its place in the window
    bool m_isDeleted = false; // another program deleted the current row
    std::optional<quint32> m_changeCounter; // of the file, when the window was read
    Direction m_direction = Direction::Forward;
    size_t m_readAhead = 0;
    std::optional<qint64> m_farthest;
};
