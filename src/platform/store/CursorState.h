// One open cursor: its position, its write cycle and what its last search found. The operations
// keep what Recordset.h promises for those of the same names.
#pragma once

#include "store/RowEdit.h"
#include "store/RowWalk.h"

class CursorState {
public:
    struct Abilities {
        bool isTable = false; // table cursor: Index and Seek; otherwise dynaset: Find
        bool isUpdatable = false;
    };

    // Stands on the first row, if there is one. The owner stays alive as long as the cursor is
    // open.
    CursorState(
        std::shared_ptr<const void> owner, std::unique_ptr<RowSource> source, Abilities abilities);

    // Lets go of the file. Every other operation throws Error::AlreadyClosed from then on.
    void close();
    bool isClosed() const { return !m_walk; }

    void chooseIndex(const QString& name);
    void seek(const QString& comparison, const QVariantList& keys);
    bool noMatch() const;

    void moveFirst();
    void moveLast();
    void step(Direction direction);
    bool isBof();
    bool isEof();

    void findFirst(const QString& criteria);
    void findBeyond(const QString& criteria, Direction direction);

    int ordinal(int ordinal) const;
    int ordinal(const QString& name) const;
    QString columnName(int ordinal) const;
    QVariant value(int ordinal);
    void setValue(int ordinal, const QVariant& value);

    void edit();
    void addNew();
    void update();
    void remove();

    int recordCount();

private:
    void checkOpen() const;
    void checkUpdatable() const;
    RowWalk& leaveEdit();
    TableRows& rowsByIndex() const;
    RowFilter beginFind(const QString& criteria);
    void find(const RowFilter& filter, const RowStretch& stretch);
    void updateCurrentRow();
    RowWriter& writer();
    RowSource& source() const { return m_walk->source(); }
    const Connection& connection() const { return *source().connection(); }

    std::shared_ptr<const void> m_owner;
    std::unique_ptr<RowWalk> m_walk;
    Abilities m_abilities;
    RowEdit m_edit;
    std::unique_ptr<RowWriter> m_writer; // made for the first write
    bool m_noMatch = false;
};
