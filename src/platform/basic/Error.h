// The one error that operations of the platform throw, and the one way to ignore it.
#pragma once

#include <QString>
#include <exception>
#include <utility>

// An error with a number that code can compare and a text that a user can act on.
class Error : public std::exception {
public:
    enum Number {
        OverflowNumber = 6,
        SubscriptOutOfRange = 9,
        TypeMismatch = 13,
        FileNotFound = 53,
        PathAccess = 75,
        ObjectNotSet = 91,
        InvalidUseOfNull = 94,
        InvalidPropertyValue = 380,
        NoCurrentRecord = 3021,
        NotUpdatable = 3027,
        UpdateWithoutEdit = 3020,
        NotAnIndex = 3015,
        NotATable = 3078,
        NotADatabase = 3343,
        NotSupportedHere = 3251,
        ItemNotFound = 3265,
        AlreadyClosed = 3420,
        DataTypeConversion = 3421,
        RecordDeleted = 3167,
        SyntaxInCriteria = 3075,
        StorageFailure = 3049,
    };

    Error(Number number, const QString& text);

    Number number() const { return m_number; }
    const QString& text() const { return m_text; }
    const char* what() const noexcept override { return m_what.constData(); }

private:
    Number m_number;
    QString m_text;
    QByteArray m_what;
};

// Runs one statement of a handler that ignores errors. Returns whether it ran to its end, so that
// a caller may leave a loop whose test failed.
template <class Statement>
bool attempt(Statement&& statement) {
    try {
        std::forward<Statement>(statement)();
        return true;
    } catch (const Error&) {
        return false;
    }
}
