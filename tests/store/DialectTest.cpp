// Every text that the windows build, carried out and held against a plain look at each row.
#include "StoreFixture.h"

namespace {

const QStringList Words = {u"light"_s,  u"SIN"_s,  u"señor"_s, u"ÉLU"_s, u"λόγος"_s,
                           u"of god"_s, u"über"_s, u"k"_s,     u"none"_s};
const QStringList Bodies = {
    u"The light of God"_s,
    u"a Light; of GOD, and sin"_s,
    u"He knew no sin: sinners, sinning. sin"_s,
    u"El SEÑOR es mi pastor. El señorío"_s,
    u"l'élu, mon Élu; l'ÉLU."_s,
    u"ὁ Λόγος ἦν ὁ ΛΌΓΟΣ, λόγος."_s,
    u"Gnade ÜBER Gnade, über."_s,
    u"sin of god; k \u212A."_s,
    u""_s,
};
const QString Followers = u" .:;,"_s;

bool holds(const QString& body, const QString& text) {
    return body.contains(text, Qt::CaseInsensitive);
}

bool holdsWithFollower(const QString& body, const QString& word, QChar follower) {
    return holds(body, u' ' + word + follower);
}

bool holdsWord(const QString& body, const QString& word, bool isWhole) {
    return isWhole ? std::any_of(
               Followers.begin(), Followers.end(),
               [&](QChar follower) { return holdsWithFollower(body, word, follower); })
                   : holds(body, word);
}

// What the controls of a search window say.
struct Choices {
    QString first;
    QString second; // empty without a second word
    bool isWhole;
    bool both;
    int testament; // 0 all, 1 old, 2 new
    int book;      // 0 all

    bool isInScope(int number) const {
        return (testament != 1 || number < 40) && (testament != 2 || number > 39)
               && (book == 0 || number == book);
    }
};

// The alternatives of a whole word, each before the next joined by `join`.
QString alternatives(const QString& word, const QString& followers, const QString& join) {
    QStringList patterns;
    for (const QChar follower : followers)
        patterns += u"\"* "_s + word + follower + u"*\""_s;
    return patterns.join(join);
}

class Dialect : public StoreFixture {
protected:
    Dialect() {
        std::vector<Verse> verses;
        for (int row = 0; row < 3 * Bodies.size(); ++row)
            verses.push_back(
                {books[static_cast<size_t>(row) % books.size()], 1, row,
                 row == 7 ? QVariant() : QVariant(Bodies[row % Bodies.size()])});
        makeTranslation(verses);
        database = openDatabase();
    }

    ~Dialect() override { EXPECT_GT(hits, 20u) << "too few to tell"; }

    // The rows that a plain look at each of them chooses.
    std::vector<qlonglong> rowsWhere(const std::function<bool(const QString&, int)>& test) {
        std::vector<qlonglong> rows;
        Recordset all = database.OpenRecordset(u"tblMain"_s);
        for (all.MoveFirst(); !all.Eof(); all.MoveNext()) {
            const QVariant body = all.Fields(4).Value();
            if (body.isValid() && test(body.toString(), all.Fields(1).Value().toInt()))
                rows.push_back(rowOf(all));
        }
        hits += rows.size();
        return rows;
    }

    // The rows that FindFirst and FindNext come to, and FindPrevious on the way back.
    std::vector<qlonglong> rowsFound(const QString& criteria) {
        std::vector<qlonglong> rows;
        Recordset cursor = database.OpenRecordset(u"tblMain"_s, dbOpenDynaset);
        for (cursor.FindFirst(criteria); !cursor.NoMatch(); cursor.FindNext(criteria))
            rows.push_back(rowOf(cursor));
        std::vector<qlonglong> back;
        if (!rows.empty())
            back.push_back(rowOf(cursor));
        for (cursor.FindPrevious(criteria); !cursor.NoMatch(); cursor.FindPrevious(criteria))
            back.push_back(rowOf(cursor));
        EXPECT_EQ(std::vector<qlonglong>(back.rbegin(), back.rend()), rows);
        return rows;
    }

    void forAllChoices(bool withSecond, const std::function<void(const Choices&)>& check) {
        for (const QString& first : Words) {
            for (const QString& second :
                 withSecond ? QStringList{u""_s, u"sin"_s, u"Of God"_s} : QStringList{u""_s}) {
                for (int form = 0; form < 36; ++form)
                    check(
                        {first, second, form % 2 == 0, form / 2 % 2 == 0, form / 4 % 3,
                         std::array{0, 3, 40}[static_cast<size_t>(form / 12)]});
            }
        }
    }

    const std::vector<int> books = {3, 40, 1, 66, 39};
    Database database;
    size_t hits = 0;
};

QString querySelect(const Choices& choices) {
    QString text = u"SELECT * FROM tblMain WHERE (((body like "_s;
    text += choices.isWhole ? alternatives(choices.first, u" ,.:;"_s, u" OR body like "_s)
                            : u"\"*"_s + choices.first + u"*\""_s;
    text += u")) "_s;
    if (choices.second.isEmpty()) {
        text += u")"_s;
    } else {
        text += choices.both ? u" AND "_s : u" OR "_s;
        text += u" ((BODY LIKE "_s;
        text += choices.isWhole ? alternatives(choices.second, u" .;:,"_s, u" or BODY LIKE "_s)
                                : u"\"*"_s + choices.second + u"*\""_s;
        text += u"))) "_s;
    }
    if (choices.testament != 0)
        text += choices.testament == 2 ? u" AND ((BOOK > 39)) "_s : u" AND ((BOOK < 40)) "_s;
    if (choices.book > 0)
        text += u" AND ((BOOK="_s + QString::number(choices.book) + u")) "_s;
    return text;
}

TEST_F(Dialect, theQueryHoldsTheVersesOfItsWordsAndScope) {
    forAllChoices(true, [&](const Choices& choices) {
        const auto expected = rowsWhere([&](const QString& body, int book) {
            const bool first = holdsWord(body, choices.first, choices.isWhole);
            const bool second = holdsWord(body, choices.second, choices.isWhole);
            const bool isHit = choices.second.isEmpty() ? first
                               : choices.both           ? first && second
                                                        : first || second;
            return isHit && choices.isInScope(book);
        });
        EXPECT_EQ(walk(database.OpenRecordset(querySelect(choices), dbOpenDynaset)), expected)
            << querySelect(choices).toStdString();
    });
}

QString advancedCriteria(const Choices& choices) {
    const QString join = choices.both ? u"  AND "_s : u"  OR "_s;
    const QString orBody = u") or (body like "_s;
    QString text = choices.isWhole ? u" ((body like "_s
                                         + alternatives(choices.first, Followers, orBody) + u")"_s
                                   : u" ((( body like \"*"_s + choices.first + u"*\"))"_s;
    if (!choices.second.isEmpty() && choices.isWhole)
        text +=
            join + u"( (body like "_s + alternatives(choices.second, Followers, orBody) + u"))"_s;
    else if (!choices.second.isEmpty())
        text += join + u"(( body like \"*"_s + choices.second + u"*\"))"_s;
    text += u")"_s;
    if (choices.book > 0)
        text += u" AND ((book = "_s + QString::number(choices.book) + u"))"_s;
    if (choices.testament != 0)
        text += choices.testament == 1 ? u" AND ((book < 40))"_s : u" AND ((book > 39))"_s;
    return text;
}

// The second word is joined to the last alternative of the first alone.
bool isAdvancedHit(const QString& body, const Choices& choices) {
    const bool second = holdsWord(body, choices.second, choices.isWhole);
    if (choices.second.isEmpty())
        return holdsWord(body, choices.first, choices.isWhole);
    if (!choices.both)
        return holdsWord(body, choices.first, choices.isWhole) || second;
    if (!choices.isWhole)
        return holds(body, choices.first) && second;
    bool isHit = holdsWithFollower(body, choices.first, u',') && second;
    for (const QChar follower : Followers.chopped(1))
        isHit = isHit || holdsWithFollower(body, choices.first, follower);
    return isHit;
}

TEST_F(Dialect, theAdvancedSearchFindsTheVersesOfItsWordsAndScope) {
    forAllChoices(true, [&](const Choices& choices) {
        const auto expected = rowsWhere([&](const QString& body, int book) {
            return isAdvancedHit(body, choices) && choices.isInScope(book);
        });
        EXPECT_EQ(rowsFound(advancedCriteria(choices)), expected)
            << advancedCriteria(choices).toStdString();
    });
}

// The searches of one word, also that of the comparison.
QString simpleCriteria(const Choices& choices) {
    QString text = choices.isWhole
                       ? u" ((body like "_s
                             + alternatives(choices.first, Followers, u") or (body like "_s)
                             + u"))"_s
                       : u" (( body like \"*"_s + choices.first + u"*\"))"_s;
    if (choices.book > 0)
        text += u" AND (book = "_s + QString::number(choices.book) + u")"_s;
    if (choices.testament != 0)
        text += choices.testament == 1 ? u" AND (book < 40)"_s : u" AND (book > 39)"_s;
    return text;
}

TEST_F(Dialect, theSimpleSearchFindsTheVersesOfItsWordAndScope) {
    forAllChoices(false, [&](const Choices& choices) {
        const auto expected = rowsWhere([&](const QString& body, int book) {
            return holdsWord(body, choices.first, choices.isWhole) && choices.isInScope(book);
        });
        EXPECT_EQ(rowsFound(simpleCriteria(choices)), expected)
            << simpleCriteria(choices).toStdString();
    });
}

TEST_F(Dialect, theFindBarFindsTheVersesOfItsText) {
    for (const QString& word : Words) {
        const auto expected =
            rowsWhere([&](const QString& body, int) { return holds(body, word); });
        EXPECT_EQ(rowsFound(u"Body like '*"_s + word + u"*'"_s), expected) << word.toStdString();
    }
}

} // namespace
