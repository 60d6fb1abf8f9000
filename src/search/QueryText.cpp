#include "search/QueryText.h"

#include "search/SearchCriteria.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int OldTestamentOnly = 1;
constexpr int NewTestamentOnly = 2;
constexpr int BooksOfOldTestament = 39;

QString firstTerm(const QueryChoice& choice) {
    const QString patterns =
        choice.wholeWords ? wholeWordPatterns(choice.firstWord, u",.:;"_s, u" OR body like "_s)
                          : anywherePattern(choice.firstWord);
    return u"(((body like "_s + patterns + u")) "_s;
}

QString secondTerm(const QueryChoice& choice) {
    if (choice.secondWord.isEmpty())
        return u")"_s;
    const QString patterns =
        choice.wholeWords ? wholeWordPatterns(choice.secondWord, u".;:,"_s, u" or BODY LIKE "_s)
                          : anywherePattern(choice.secondWord);
    return (choice.both ? u" AND "_s : u" OR "_s) + u" ((BODY LIKE "_s + patterns + u"))) "_s;
}

QString scopeTerm(const QueryChoice& choice) {
    if (choice.scope == NewTestamentOnly)
        return u" AND ((BOOK > 39)) "_s;
    return choice.scope == OldTestamentOnly ? u" AND ((BOOK < 40)) "_s : QString();
}

// Under the Old Testament the list holds the books of the New one.
QString bookTerm(const QueryChoice& choice) {
    if (choice.book <= 0)
        return {};
    const int book =
        choice.scope == OldTestamentOnly ? choice.book + BooksOfOldTestament : choice.book;
    return u" AND ((BOOK="_s + QString::number(book) + u")) "_s;
}

} // namespace

QString queryText(const QueryChoice& choice) {
    return u"SELECT * FROM tblMain WHERE "_s + firstTerm(choice) + secondTerm(choice)
           + scopeTerm(choice) + bookTerm(choice);
}
