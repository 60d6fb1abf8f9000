// The criteria and SELECT dialect that the program writes, read into a tree. A text typed by the
// user may break a criteria text, which is then an Error; it can never reach SQL, since the tree
// is rebuilt with bound values.
//
//   select     = SELECT * FROM name [WHERE expression]
//   expression = term {OR term}         OR binds weaker than AND
//   term       = factor {AND factor}
//   factor     = "(" expression ")" | comparison
//   comparison = name ("=" | "<" | ">") value | name LIKE text
//   value      = number | text          blanks may stand around a number
//   number     = [+|-] digits [. digits] [e [+|-] digits]
//   text       = '...' or "..."         no escapes: the next same quote ends it
//
// Words and names are read without regard to case. In LIKE "*" stands for any run of characters and
// every other character for itself, compared without regard to case in every script; the pattern
// covers the whole field. A Null field meets no comparison. A number is compared with the number
// that the field holds, also as a text ("12"), and is met by no field that holds none. A text is
// compared without regard to case, with the text form of a field that holds a number.
#pragma once

#include <QString>
#include <QVariant>
#include <memory>
#include <vector>

// One node of a criteria tree.
struct Criterion {
    enum class Kind { And, Or, Equal, Less, Greater, Like };

    Kind kind = Kind::And;
    QString field;                   // of a comparison
    QVariant value;                  // of a comparison: double or QString; of Like: QString
    std::vector<Criterion> operands; // of And and Or, in the order of the text
};

struct SelectStatement {
    QString table;
    bool hasCriteria = false;
    Criterion criteria;
};

// The depth of parentheses, and the number of comparisons, up to which a text is read. The program
// writes a dozen comparisons at the most; what a user's quotes add must not keep him waiting.
inline constexpr int MaximumCriteriaDepth = 100;
inline constexpr int MaximumComparisons = 200;

// Error::SyntaxInCriteria, with the place where reading stopped, for a text outside the dialect,
// an empty one, or one that goes beyond the limits above.
Criterion parseCriteria(const QString& text);
SelectStatement parseSelect(const QString& text);

// Whether an OpenRecordset source is a SELECT text and no table name.
bool isSelect(const QString& source);
