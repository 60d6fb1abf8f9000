#include "store/Recordset.h"

#include "basic/Error.h"
#include "store/CursorState.h"

using namespace Qt::StringLiterals;

namespace {

CursorState& cursorOf(const std::shared_ptr<CursorState>& state) {
    if (!state)
        throw Error(Error::ObjectNotSet, u"There is no cursor here."_s);
    return *state;
}

} // namespace

Field::Field(std::shared_ptr<CursorState> cursor, int ordinal)
    : m_cursor(std::move(cursor))
    , m_ordinal(ordinal) {}

QVariant Field::Value() const {
    return m_cursor->value(m_ordinal);
}

void Field::setValue(const QVariant& value) {
    m_cursor->setValue(m_ordinal, value);
}

Field& Field::operator=(const QVariant& value) {
    setValue(value);
    return *this;
}

Field& Field::operator=(const Field& other) {
    if (this != &other)
        setValue(other.Value());
    return *this;
}

QString Field::Name() const {
    return m_cursor->columnName(m_ordinal);
}

Recordset::Recordset() = default;

Recordset::Recordset(std::shared_ptr<CursorState> state)
    : m_state(std::move(state)) {}

void Recordset::Close() {
    cursorOf(m_state).close();
}

void Recordset::Index(const QString& name) {
    cursorOf(m_state).chooseIndex(name);
}

void Recordset::seek(const QString& comparison, const QVariantList& keys) {
    cursorOf(m_state).seek(comparison, keys);
}

bool Recordset::NoMatch() const {
    return cursorOf(m_state).noMatch();
}

void Recordset::MoveFirst() {
    cursorOf(m_state).moveFirst();
}

void Recordset::MoveLast() {
    cursorOf(m_state).moveLast();
}

void Recordset::MoveNext() {
    cursorOf(m_state).step(Direction::Forward);
}

void Recordset::MovePrevious() {
    cursorOf(m_state).step(Direction::Backward);
}

bool Recordset::Bof() const {
    return cursorOf(m_state).isBof();
}

bool Recordset::Eof() const {
    return cursorOf(m_state).isEof();
}

void Recordset::FindFirst(const QString& criteria) {
    cursorOf(m_state).findFirst(criteria);
}

void Recordset::FindNext(const QString& criteria) {
    cursorOf(m_state).findBeyond(criteria, Direction::Forward);
}

void Recordset::FindPrevious(const QString& criteria) {
    cursorOf(m_state).findBeyond(criteria, Direction::Backward);
}

Field Recordset::Fields(int ordinal) {
    return {m_state, cursorOf(m_state).ordinal(ordinal)};
}

Field Recordset::Fields(const QString& name) {
    return {m_state, cursorOf(m_state).ordinal(name)};
}

void Recordset::Edit() {
    cursorOf(m_state).edit();
}

void Recordset::AddNew() {
    cursorOf(m_state).addNew();
}

void Recordset::Update() {
    cursorOf(m_state).update();
}

void Recordset::Delete() {
    cursorOf(m_state).remove();
}

int Recordset::RecordCount() {
    return cursorOf(m_state).recordCount();
}
