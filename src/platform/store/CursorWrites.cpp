// The fields of a cursor and its write cycle.
#include "store/CursorState.h"

#include "basic/Error.h"
#include "store/Connection.h"

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void throwRecordDeleted() {
    throw Error(Error::RecordDeleted, u"The row was deleted."_s);
}

} // namespace

int CursorState::ordinal(int ordinal) const {
    checkOpen();
    const TableSchema& table = source().table();
    if (ordinal < 0 || ordinal >= static_cast<int>(table.columns.size()))
        table.failForLackOf(QString::number(ordinal));
    return ordinal;
}

int CursorState::ordinal(const QString& name) const {
    checkOpen();
    const TableSchema& table = source().table();
    const int found = table.columnNamed(name);
    if (found < 0)
        table.failForLackOf(u'"' + name + u'"');
    return found;
}

QString CursorState::columnName(int ordinal) const {
    checkOpen();
    return source().table().columns[static_cast<size_t>(ordinal)].name;
}

QVariant CursorState::value(int ordinal) {
    checkOpen();
    if (const StoredValue* const assigned = m_edit.assigned(ordinal))
        return toVariant(*assigned);
    if (m_edit.kind() == RowEdit::Kind::Add)
        return {};
    return toVariant(m_walk->current().values[static_cast<size_t>(ordinal)]);
}

void CursorState::setValue(int ordinal, const QVariant& value) {
    checkOpen();
    if (m_edit.kind() == RowEdit::Kind::None)
        throw Error(
            Error::UpdateWithoutEdit, u"A field takes a value only after Edit or AddNew."_s);
    const Column& column = source().table().columns[static_cast<size_t>(ordinal)];
    m_edit.assign(ordinal, toStored(value, column.affinity));
}

void CursorState::checkUpdatable() const {
    checkOpen();
    if (!m_abilities.isUpdatable || !connection().isWritable())
        throw Error(
            Error::NotUpdatable,
            u"The file %1 is open for reading only. Check that the file and "
            "its folder are not write-protected."_s.arg(connection().shownName()));
}

RowWriter& CursorState::writer() {
    if (!m_writer)
        m_writer = std::make_unique<RowWriter>(source().connection(), source().table());
    return *m_writer;
}

void CursorState::edit() {
    checkUpdatable();
    m_walk->current();
    m_edit.begin(RowEdit::Kind::Edit);
}

void CursorState::addNew() {
    checkUpdatable();
    m_edit.begin(RowEdit::Kind::Add);
}

void CursorState::update() {
    checkOpen();
    if (m_edit.kind() == RowEdit::Kind::None)
        throw Error(Error::UpdateWithoutEdit, u"Update needs an Edit or AddNew before it."_s);
    if (m_edit.kind() == RowEdit::Kind::Edit)
        updateCurrentRow();
    else
        source().include(writer().insert(m_edit));
    m_edit.end();
}

void CursorState::updateCurrentRow() {
    const Row& row = m_walk->current();
    if (m_edit.changesNothingIn(row))
        return;
    const qint64 number = row.number;
    if (!writer().update(number, m_edit))
        throwRecordDeleted();
    const int numberColumn = source().table().rowNumberColumn();
    const StoredValue* const newNumber = m_edit.assigned(numberColumn);
    if (!newNumber)
        return;
    source().exclude(number);
    source().include(std::get<qint64>(*newNumber));
    m_walk->renumberCurrent(std::get<qint64>(*newNumber));
}

void CursorState::remove() {
    checkUpdatable();
    m_edit.end();
    const qint64 number = m_walk->current().number;
    if (!writer().remove(number))
        throwRecordDeleted();
    source().exclude(number);
    m_walk->leaveGap();
}
