#include "text/BookTable.h"

#include <QSet>
#include <gtest/gtest.h>
#include <numeric>

using namespace Qt::StringLiterals;

TEST(BookTable, holdsThe66BooksInOrder) {
    ASSERT_EQ(books().size(), 66U);
    for (int entry = 0; entry < 66; ++entry)
        EXPECT_EQ(books()[entry].number, entry + 1);
    EXPECT_EQ(books()[0].name, "Genesis"_L1);
    EXPECT_EQ(books()[39].name, "Matthew"_L1);
    EXPECT_EQ(books()[65].name, "Revelation"_L1);
}

TEST(BookTable, countsTheCataloguesChapters) {
    const int chapters =
        std::accumulate(books().begin(), books().end(), 0, [](int sum, const Book& book) {
            return sum + book.chapters;
        });
    EXPECT_EQ(chapters, 1189);
    EXPECT_EQ(findBook(u"Ps")->chapters, 150);
}

TEST(BookTable, givesNoNameToTwoBooks) {
    QSet<QString> names;
    for (const Book& book : books())
        names << QString(book.osis).toLower() + u" osis"_s << QString(book.usfm).toLower()
              << QString(book.name).toLower() + u" english"_s;
    EXPECT_EQ(names.size(), 3 * 66);
}

TEST(BookTable, findsABookByAnyOfItsNamesWithoutRegardToCase) {
    for (const QString& name : {u"1Sam"_s, u"1SA"_s, u"1 samuel"_s, u"9"_s}) {
        ASSERT_NE(findBook(name), nullptr) << qPrintable(name);
        EXPECT_EQ(findBook(name)->number, 9);
    }
}

TEST(BookTable, findsEveryBookByEveryName) {
    for (const Book& book : books()) {
        EXPECT_EQ(findBook(QString(book.osis)), &book);
        EXPECT_EQ(findBook(QString(book.usfm).toLower()), &book);
        EXPECT_EQ(findBook(QString(book.name).toUpper()), &book);
        EXPECT_EQ(findBook(QString::number(book.number)), &book);
    }
}

TEST(BookTable, guessesNothing) {
    for (const QString& name : {u"Genesys"_s, u"Tob"_s, u"0"_s, u"67"_s, u""_s, u"Gen "_s})
        EXPECT_EQ(findBook(name), nullptr) << qPrintable(name);
}

TEST(BookTable, namesAVerse) {
    EXPECT_EQ(verseName({9, 3, 4}), u"1 Samuel 3:4"_s);
    EXPECT_EQ(verseName({70, 3, 4}), u"Book 70 3:4"_s);
    EXPECT_EQ(verseName({0, 3, 4}), u"Book 0 3:4"_s);
}
