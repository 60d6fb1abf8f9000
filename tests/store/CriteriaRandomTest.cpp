// Criteria texts as broken as typing can make them, and worse: each is answered by a result or an
// error, and none changes the file.
#include "StoreFixture.h"
#include "store/Criteria.h"

#include <QFile>
#include <random>

namespace {

const QStringList ValidTexts = {
    u"ID = 5"_s,
    u"book =  1 and chapter =  1 and verse =  1"_s,
    u"Body like '*light*'"_s,
    u" ((body like \"* sin *\") or (body like \"* sin.*\") or (body like \"* sin,*\")) AND (book < "
    "40)"_s,
    u" ((( body like \"*a*\"))  AND (( body like \"*b*\"))) AND ((book = 3))"_s,
    u"name = \"x\" or note > 'y' and verse < 3.5e1"_s,
    u"SELECT * FROM tblMain WHERE (((body like \"*a*\"))  AND  ((BODY LIKE \"*b*\")))  AND ((BOOK "
    "< 40)) "_s,
    u"SELECT * FROM tblMain"_s,
    u"1'; DROP TABLE tblMain; --"_s,
    u"' OR 1=1 --"_s,
    u"ID = 1; UPDATE tblMain SET body = 'x'"_s,
    u"ID in (SELECT ID FROM tblMain)"_s,
};

class CriteriaSoup : public StoreFixture {
protected:
    CriteriaSoup() {
        makeTranslation({{1, 1, 1, u"light"_s, u"a"_s}, {40, 2, 3, u"a b"_s}, {3, 1, 1}});
        before = content();
        database = openDatabase();
        cursor = database.OpenRecordset(u"tblMain"_s);
    }

    ~CriteriaSoup() override { EXPECT_EQ(content(), before); }

    QByteArray content() const {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    int below(qsizetype end) { return static_cast<int>(random() % static_cast<unsigned>(end)); }

    QChar randomCharacter() {
        static const QString common = u"'\"()*=<> \t.-+0123456789eaorndlikbystBODY;"_s;
        switch (below(8)) {
        case 0:
            return QChar(static_cast<char16_t>(random()));
        case 1:
            return QChar(static_cast<char16_t>(0xD7F0 + below(0x820))); // around the surrogates
        case 2:
            return QChar(static_cast<char16_t>(below(32)));
        default:
            return common[below(common.size())];
        }
    }

    QString soup() {
        QString text;
        for (int length = below(40); length > 0; --length)
            text += randomCharacter();
        return text;
    }

    QString mutation() {
        QString text = ValidTexts[below(ValidTexts.size())];
        for (int changes = below(3); changes > 0 && !text.isEmpty(); --changes) {
            const int place = below(text.size());
            switch (below(5)) {
            case 0:
                text[place] = randomCharacter();
                break;
            case 1:
                text.insert(place, randomCharacter());
                break;
            case 2:
                text.remove(place, 1 + below(4));
                break;
            case 3:
                text.insert(place, text.mid(below(text.size()), below(20)));
                break;
            default:
                text.insert(place, below(2) == 0 ? u'\'' : u'"');
            }
        }
        return text;
    }

    // Runs a text in every way in which one can be given to the store.
    void expectAnswer(const QString& text) {
        const auto outcome = errorOf([&] { parseCriteria(text); });
        EXPECT_TRUE(!outcome || outcome == Error::SyntaxInCriteria);
        const auto found = errorOf([&] { cursor.FindFirst(text); });
        EXPECT_TRUE(outcome ? found == outcome : !found || found == Error::ItemNotFound);
        const auto opened = errorOf([&] { database.OpenRecordset(text); });
        EXPECT_TRUE(
            !opened || opened == Error::SyntaxInCriteria || opened == Error::NotATable
            || opened == Error::ItemNotFound);
        answered += !found || !opened;
        ASSERT_FALSE(HasFailure()) << text.toStdString();
    }

    std::mt19937 random{6};
    QByteArray before;
    Database database;
    Recordset cursor;
    int answered = 0;
};

TEST_F(CriteriaSoup, changedTextsAreAnswered) {
    for (int round = 0; round < 60000; ++round)
        expectAnswer(mutation());
    EXPECT_GT(answered, 5000) << "many must still be well formed";
}

TEST_F(CriteriaSoup, randomCharactersAreAnswered) {
    for (int round = 0; round < 60000; ++round)
        expectAnswer(soup());
}

TEST_F(CriteriaSoup, anyTypedWordIsAnsweredInEveryShape) {
    for (int round = 0; round < 20000; ++round) {
        const QString word = soup();
        expectAnswer(u"Body like '*"_s + word + u"*'"_s);
        expectAnswer(u" (( body like \"*"_s + word + u"*\"))"_s);
        expectAnswer(u"SELECT * FROM tblMain WHERE (((body like \"*"_s + word + u"*\")) )"_s);
    }
}

TEST_F(CriteriaSoup, theLongestChainIsCarriedOut) {
    cursor.FindFirst(u"ID = 9"_s + u" or Body like '*b'"_s.repeated(MaximumComparisons - 1));
    EXPECT_EQ(rowOf(cursor), 2);
    const int depth = MaximumCriteriaDepth - 2;
    cursor.FindFirst(
        u"("_s.repeated(depth) + u"ID = 3"_s + u" and book = 3)"_s.repeated(depth / 2)
        + u" or book = 99)"_s.repeated(depth / 2));
    EXPECT_EQ(rowOf(cursor), 3);
}

} // namespace
